#include "Picture.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr QRgb skyTop = 0xff2c5f9e;
constexpr QRgb skyBottom = 0xfff4c28b;
constexpr QRgb sun = 0xffffe9b0;

/// One row of hills, from the back to the front; all but the colour in fractions of the height.
struct Hills
{
    qreal top;
    qreal rise;
    qreal pitch;
    QRgb color;
};
constexpr Hills rows[] = {
    {0.55, 0.14, 0.60, 0xff7d8fa6},
    {0.68, 0.10, 0.40, 0xff4f7a6b},
    {0.82, 0.07, 0.27, 0xff2f5a3f},
};

QPainterPath outline(const Hills& hills, const QSize& size)
{
    const qreal height = size.height();
    QPainterPath path(QPointF(0, height));
    for (int x = 0; x <= size.width(); x += 4) {
        const qreal wave = std::sin(x / (hills.pitch * height) * M_PI + hills.top * 9);
        path.lineTo(x, (hills.top - hills.rise * wave) * height);
    }
    path.lineTo(size.width(), height);
    path.closeSubpath();
    return path;
}

} // namespace

Picture::Picture(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Picture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0, QColor(skyTop));
    sky.setColorAt(0.7, QColor(skyBottom));
    painter.fillRect(rect(), sky);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(sun));
    painter.drawEllipse(QPointF(0.2 * width(), 0.35 * height()), 0.1 * height(), 0.1 * height());
    for (const Hills& hills : rows) {
        painter.setBrush(QColor(hills.color));
        painter.drawPath(outline(hills, size()));
    }
}
