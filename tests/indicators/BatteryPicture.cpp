#include "BatteryPicture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

QLinearGradient bottomLeftToTopRight(const QColor& from, const QColor& to)
{
    QLinearGradient gradient(0, 1, 1, 0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setStops({{0.0, from}, {1.0, to}});
    return gradient;
}

int rounded(double value)
{
    return int(std::floor(value + 0.5));
}

} // namespace

void BatteryPicture::layOut(const QRect& contents)
{
    const int fw = frameWidth;
    const int cw = contents.width();
    const int ch = contents.height();
    const int w = rounded((ch - fw) / 1.7134955147666626 + fw);
    const int bw = std::min(w, cw) - 2 * fw;
    const int topW = rounded(bw / 3.236);
    const int bodyH = rounded(bw * 1.618);
    const int topH = rounded(topW / 3.236);
    const int y0 = contents.top() + (ch - (bodyH + topH + fw)) / 2;

    terminal = QRect(contents.left() + (cw - (fw + topW)) / 2 + fw / 2, y0, topW, topH);
    body = QRect(contents.left() + (cw - (fw + bw)) / 2 + fw / 2, y0 + topH, bw, bodyH);
    const int iconW = rounded(bw / 1.618);
    boltBox =
        QRect(body.left() + (bw - iconW) / 2 + fw, body.top() + (bodyH - bw) / 2 + fw, iconW, bw);
}

void BatteryPicture::draw(QImage& image, Damage damage, const QRect& clip) const
{
    QPainter painter(&image);
    if (!clip.isEmpty())
        painter.setClipRect(clip);
    painter.setRenderHint(QPainter::Antialiasing);
    if (damage.body)
        drawFill(painter);
    drawFrame(painter, damage);
    if (damage.body && present && charging)
        drawBolt(painter);
}

void BatteryPicture::drawFill(QPainter& painter) const
{
    const int half = frameWidth / 2;
    QRect area = body.adjusted(half, half, -half, -half);
    if (!present) {
        painter.fillRect(area, QBrush(foreground, Qt::BDiagPattern));
        return;
    }
    area.setTop(area.bottom() - rounded(area.height() * (percent / 100.0)));
    painter.fillRect(area, bottomLeftToTopRight(fill.darker(200), fill.lighter(150)));
}

void BatteryPicture::drawFrame(QPainter& painter, Damage damage) const
{
    painter.setPen(QPen(foreground, frameWidth, present ? Qt::SolidLine : Qt::DashLine,
                        Qt::SquareCap, Qt::BevelJoin));
    const double radius = frameWidth * 1.618;
    if (damage.body) {
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(body), radius, radius);
    }
    if (damage.terminal) {
        painter.setBrush(QBrush(foreground, present ? Qt::SolidPattern : Qt::BDiagPattern));
        painter.drawRoundedRect(QRectF(terminal), radius, radius);
    }
}

void BatteryPicture::drawBolt(QPainter& painter) const
{
    const QColor amber(239, 184, 0);
    const double left = boltBox.left();
    const double top = boltBox.top();
    const double right = boltBox.right();
    const double bottom = boltBox.bottom();
    const double a = boltBox.width() / 9.708;
    const double d = boltBox.width() / 1.618;
    const double cx = boltBox.left() + boltBox.width() / 2;

    QPolygonF bolt;
    bolt << QPointF(left, bottom) << QPointF(cx - a, top + d + a) << QPointF(left + a, top + d + a)
         << QPointF(cx - a, top) << QPointF(right + 1 - a, top) << QPointF(cx + a, top + d)
         << QPointF(right, top + d) << QPointF(left, bottom);
    QPainterPath path;
    path.addPolygon(bolt);
    painter.setPen(
        QPen(amber.darker(150), frameWidth / 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(bottomLeftToTopRight(amber.darker(125), amber.lighter(125)));
    painter.drawPath(path);
}
