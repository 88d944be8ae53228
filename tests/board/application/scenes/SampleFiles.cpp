#include "scenes/SampleFiles.h"

#include <QDir>
#include <QDirIterator>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

const QString photos = QStringLiteral("/tmp/photos");
const QString notes = QStringLiteral("/tmp/notes");

void makeFile(const QString& path, int size)
{
    QFile file(path);
    if (QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly))
        file.write(QByteArray(size, '.'));
}

/// Files and directories are as old on every board.
void age(const QString& root)
{
    const timespec time = {1577934240, 0};
    const timespec times[] = {time, time};
    QDirIterator iterator(root, QDir::AllEntries | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext())
        utimensat(AT_FDCWD, qPrintable(iterator.next()), times, 0);
}

} // namespace

QStringList makeSampleFiles()
{
    makeFile(photos + QStringLiteral("/2019/summer/lake/boats/red/one.jpg"), 100);
    makeFile(photos + QStringLiteral("/2019/winter/snow.jpg"), 2000);
    makeFile(photos + QStringLiteral("/2020/party.jpg"), 30000);
    for (const char* name : {"bridge.jpg", "church.jpg", "market.jpg"})
        makeFile(photos + QLatin1Char('/') + QLatin1String(name), 4000);
    makeFile(notes + QStringLiteral("/shopping.txt"), 50);
    for (int number = 10; number < 60; ++number)
        makeFile(notes + QStringLiteral("/many/note-%1.txt").arg(number), number);
    age(photos);
    age(notes);
    return {photos, notes};
}
