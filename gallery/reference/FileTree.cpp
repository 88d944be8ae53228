#include "FileTree.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

namespace {

QDateTime dateInMarch(int day)
{
    return {QDate(2024, 3, day), QTime(9, 30)};
}

} // namespace

FileTree::FileTree()
{
    const QDir root(m_directory.path());
    for (const char* name : {"device/Music/Live", "device/Pictures", "stick"})
        root.mkpath(QString::fromLatin1(name));
    addFile(QStringLiteral("device/cover.jpg"), 48200, 4);
    addFile(QStringLiteral("device/journal.txt"), 1830, 11);
    addFile(QStringLiteral("device/values.csv"), 7400, 17);
    addFile(QStringLiteral("device/Music/encore.ogg"), 2840000, 2);
    addFile(QStringLiteral("device/Music/opening.ogg"), 3150000, 2);
    addFile(QStringLiteral("stick/backup.zip"), 81300000, 8);
    addFile(QStringLiteral("stick/journal.txt"), 1830, 11);
    addFile(QStringLiteral("stick/values.csv"), 7400, 17);
}

QString FileTree::device() const
{
    return m_directory.filePath(QStringLiteral("device"));
}

QString FileTree::stick() const
{
    return m_directory.filePath(QStringLiteral("stick"));
}

void FileTree::addFile(const QString& name, int size, int day) const
{
    QFile file(m_directory.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.resize(size);
    file.setFileTime(dateInMarch(day), QFileDevice::FileModificationTime);
}
