#pragma once

#include "pages/Pages.h"

QT_BEGIN_NAMESPACE
class QDir;
class QTextStream;
QT_END_NAMESPACE

/**
 * Renders \a pages to PNG files in \a directory, which exists, and prints each path to \a out.
 *
 * Every page gives ID-light.png, ID-light@2x.png (device pixel ratio 2), ID-dark.png,
 * ID-right-to-left.png and ID-disabled.png; \a styleSheet applies to all of them. Existing files
 * are overwritten. Returns false, with a message in \a error, at the first file that cannot be
 * written.
 */
bool takeScreenshots(const QVector<PageEntry>& pages, const QDir& directory,
                     const QString& styleSheet, QTextStream& out, QString* error);
