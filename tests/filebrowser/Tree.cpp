#include "Tree.h"

#include <QDir>
#include <QFile>

#include <cstdio>

#include <sys/stat.h>

namespace test {

Tree::Tree()
{
    Q_ASSERT(m_dir.isValid());
}

Tree::~Tree()
{
    for (const QByteArray& path : qAsConst(m_nativePaths))
        std::remove(path.constData());
}

QString Tree::path(const QString& relative) const
{
    // Canonical, as a temporary folder may be a link itself.
    const QString top = QDir(m_dir.path()).canonicalPath();
    return relative.isEmpty() ? top : top + QLatin1Char('/') + relative;
}

void Tree::makeDir(const QString& relative) const
{
    if (!QDir().mkpath(path(relative)))
        qFatal("cannot make the directory %s", qPrintable(relative));
}

void Tree::makeFile(const QString& relative, const QByteArray& content) const
{
    QFile file(path(relative));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the file %s", qPrintable(relative));
}

void Tree::makeLink(const QString& target, const QString& relative) const
{
    if (!QFile::link(target, path(relative)))
        qFatal("cannot make the link %s", qPrintable(relative));
}

void Tree::makeFileNamed(const QByteArray& name)
{
    FILE* file = std::fopen(nativePath(name).constData(), "w");
    if (!file)
        qFatal("cannot write the file %s", name.constData());
    std::fclose(file);
}

void Tree::makeDirNamed(const QByteArray& name)
{
    if (::mkdir(nativePath(name).constData(), S_IRWXU) != 0)
        qFatal("cannot make the directory %s", name.constData());
}

QByteArray Tree::nativePath(const QByteArray& name)
{
    m_nativePaths.append(QFile::encodeName(path()) + '/' + name);
    return m_nativePaths.constLast();
}

QStringList Tree::names(const QString& prefix, int count)
{
    constexpr int digits = 5;
    QStringList result;
    for (int i = 0; i < count; ++i)
        result.append(prefix + QString::number(i).rightJustified(digits, QLatin1Char('0')));
    return result;
}

} // namespace test
