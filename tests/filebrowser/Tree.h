#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

namespace test {

/// A temporary directory to fill, removed with all that it holds at the end.
class Tree
{
public:
    Tree();
    ~Tree();
    Q_DISABLE_COPY(Tree)

    /// The path of the tree, or of \a relative in it.
    QString path(const QString& relative = QString()) const;

    /// Makes a directory and those above it.
    void makeDir(const QString& relative) const;
    void makeFile(const QString& relative, const QByteArray& content = QByteArray()) const;
    /// A symbolic link with any text as its target.
    void makeLink(const QString& target, const QString& relative) const;
    /// An entry of the tree's top directory whose name is any sequence of bytes.
    void makeFileNamed(const QByteArray& name);
    void makeDirNamed(const QByteArray& name);

    /// \a count names that sort in their order: "d000", "d001"…
    static QStringList names(const QString& prefix, int count);

private:
    QByteArray nativePath(const QByteArray& name);

    QTemporaryDir m_dir;
    QVector<QByteArray> m_nativePaths; ///< Of what QTemporaryDir cannot remove by itself.
};

} // namespace test
