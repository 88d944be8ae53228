#pragma once

#include <QImage>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// How the gallery takes pictures of widgets that nobody sees.
namespace rendering {

/// Gives what is shown time for what it does by itself.
void settle();

/// Shows \a window, though not on the screen, and lets it settle.
void showUnseen(QWidget* window);

/// \a widget on the ground of its palette, \a devicePixelRatio picture pixels for each of its own.
QImage pictureOf(QWidget* widget, qreal devicePixelRatio);

} // namespace rendering
