#pragma once

#include <QPoint>

QT_BEGIN_NAMESPACE
class QAbstractItemView;
class QString;
class QWidget;
QT_END_NAMESPACE

namespace test {

/// Presses and releases the left button of the X server's pointer at \a position of \a widget.
bool tap(const QWidget& widget, const QPoint& position);
/// In the middle of \a widget.
bool tap(const QWidget& widget);
/// On the entry \a name of \a view.
bool tapEntry(QAbstractItemView& view, const QString& name);

} // namespace test
