#pragma once

#include <QStringList>

/// The directories named on the command line, as absolute paths: the roots of the file browser page.
/// Empty if none was named; the page then shows directories of its own choice.
QStringList galleryDirectories();
void setGalleryDirectories(const QStringList& directories);
