#pragma once

#include <QImage>

#include <functional>

QT_BEGIN_NAMESPACE
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
