#pragma once

#include "pages/Pages.h"

#include <QImage>

#include <functional>

QT_BEGIN_NAMESPACE
class QDir;
class QTextStream;
class QWidget;
QT_END_NAMESPACE

/// How the gallery takes pictures of widgets that nobody sees.
namespace rendering {

/// Processes events until \a condition holds; gives up after a few seconds, and returns false then.
bool waitUntil(const std::function<bool()>& condition);

/// Shows \a window, though not on the screen, and processes the events that are pending then.
void showUnseen(QWidget* window);

/// \a widget on the background of its palette, \a devicePixelRatio picture pixels for each of its
/// own.
QImage pictureOf(QWidget* widget, qreal devicePixelRatio);

} // namespace rendering

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
