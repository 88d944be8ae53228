#include "ChangingTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace soak {

namespace {

void setReadable(const QString& path, bool readable)
{
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions(path, readable ? owner : QFile::Permissions());
}

void remove(const QString& path)
{
    if (QFileInfo(path).isDir() && !QFileInfo(path).isSymLink())
        QDir(path).removeRecursively();
    else
        QFile::remove(path);
}

} // namespace

ChangingTree::ChangingTree()
{
    m_tree.makeDir(QStringLiteral("a/b/c/a/b"));
    m_tree.makeDir(QStringLiteral("b"));
    m_tree.makeFile(QStringLiteral("a/b/c/b.txt"));
    m_tree.makeFile(QStringLiteral("c.txt"));
}

ChangingTree::~ChangingTree()
{
    QDirIterator entries(m_tree.path(), QDir::AllDirs | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        setReadable(entries.next(), true);
}

QString ChangingTree::place(Values& values)
{
    QString result;
    for (int depth = 1 + values.below(4); depth > 0; --depth)
        result += QLatin1Char("abc"[values.below(3)]) + QStringLiteral("/");
    result.chop(1);
    return result;
}

QString ChangingTree::path(Values& values) const
{
    return values.below(6) == 0 ? m_tree.path() : m_tree.path(place(values));
}

void ChangingTree::change(Values& values)
{
    const QString relative = place(values);
    const QString parent = m_tree.path(relative.section(QLatin1Char('/'), 0, -2));
    switch (values.below(6)) {
    case 0:
    case 1:
        QDir().mkpath(m_tree.path(relative));
        break;
    case 2: {
        QFile file(m_tree.path(relative) + QStringLiteral(".txt"));
        file.open(QIODevice::WriteOnly);
        break;
    }
    case 3:
        remove(m_tree.path(relative));
        break;
    case 4:
        QFile::rename(m_tree.path(relative), parent + QStringLiteral("/c"));
        break;
    default:
        setReadable(m_tree.path(relative), values.boolean());
    }
}

} // namespace soak
