#pragma once

#include "Row.h"

#include <QImage>
#include <QRegion>

#include <memory>

QT_BEGIN_NAMESPACE
class QPainter;
class QWidget;
QT_END_NAMESPACE

namespace bench {

/// An image in the format of the backing store of a window.
QImage backingStore(const QSize& size);

/// Paints \a region (all of it if empty) of \a widget alone, with Qt's dispatch of a paint event.
Work paint(std::shared_ptr<QWidget> widget, const QRegion& region = QRegion());

/// The baseline of a painted row: \a draw on a bare image, without any widget.
Work draw(const QSize& size, std::function<void(QPainter&)> draw);

} // namespace bench
