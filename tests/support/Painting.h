#pragma once

#include <QColor>
#include <QImage>
#include <QRegion>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace test {

/// An image of \a size device-independent pixels filled with \a background.
QImage canvas(const QSize& size, qreal devicePixelRatio = 1.0,
              const QColor& background = Qt::white);

/**
 * What \a widget alone, without its children and without a window background, paints on a canvas.
 * \a region is the region of the paint event; the whole widget if it is empty.
 */
QImage paintedBy(QWidget& widget, qreal devicePixelRatio = 1.0, const QRegion& region = QRegion(),
                 const QColor& background = Qt::white);

/**
 * Whether the two images agree in size and in every pixel.
 * Where they do not, prints the first differing pixel and leaves both as PNG files in the
 * working directory of the test.
 */
bool sameImage(const QImage& actual, const QImage& expected);

} // namespace test
