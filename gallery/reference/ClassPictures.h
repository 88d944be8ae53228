#pragma once

#include "ClassSheet.h"

QT_BEGIN_NAMESPACE
class QDir;
class QImage;
class QTextStream;
QT_END_NAMESPACE

/// The picture of \a sheet: its states side by side in rows, on white.
QImage classPicture(const ClassSheet& sheet);

/**
 * Renders the picture of each class to CLASS.png in \a directory, which exists, and prints its path to
 * \a out. Existing files are overwritten. Returns false, with a message in \a error, at the first file
 * that cannot be written.
 */
bool takeClassPictures(const QVector<ClassSheet>& sheets, const QDir& directory, QTextStream& out,
                       QString* error);
