#pragma once

#include <QTemporaryDir>

/// A few files and directories, the same everywhere but for the path, for as long as it lives.
class FileTree
{
public:
    FileTree();

    /// A directory with directories in it.
    QString device() const;
    /// A directory of files only.
    QString stick() const;

private:
    void addFile(const QString& name, int size, int day) const;

    QTemporaryDir m_directory;
};
