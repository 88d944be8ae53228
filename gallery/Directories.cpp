#include "Directories.h"

namespace {

QStringList& storedDirectories()
{
    static QStringList directories;
    return directories;
}

} // namespace

QStringList galleryDirectories()
{
    return storedDirectories();
}

void setGalleryDirectories(const QStringList& directories)
{
    storedDirectories() = directories;
}
