#include "BatteryFlags.h"
#include "BoundedInt.h"
#include "ui/CBatteryStatusWidget.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QPaintEvent>
#include <QStylePainter>

namespace ui {

namespace {

const QColor& boltColor()
{
    static const QColor color(239, 184, 0);
    return color;
}

/// Kept for the life of the process, as every bolt has the same outline.
const QColor& boltOutlineColor()
{
    static const QColor color = boltColor().darker(150);
    return color;
}

/// From the bottom left to the top right of the bolt.
QBrush boltBrush()
{
    QLinearGradient gradient(0, 1, 1, 0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.0, boltColor().darker(125));
    gradient.setColorAt(1.0, boltColor().lighter(125));
    return QBrush(gradient);
}

/**
 * The bolt in its box: an upper bar at the right, a step back, a tip at the right edge, and a long
 * diagonal down to the bottom left that returns past a notch.
 */
QPainterPath boltPath(const QRect& box)
{
    constexpr double sixGoldenRatios = 9.708;
    const double left = box.left();
    const double top = box.top();
    const double right = box.right();
    const double bottom = box.bottom();
    const double a = box.width() / sixGoldenRatios;
    const double d = box.width() / CBatteryStatusWidget::GOLDEN_RATIO;
    const double cx = box.left() + box.width() / 2;

    QPainterPath path(QPointF(left, bottom));
    path.lineTo(cx - a, top + d + a);
    path.lineTo(left + a, top + d + a);
    path.lineTo(cx - a, top);
    path.lineTo(right + 1 - a,
                top); // from the outer edge, while the tip below lies on the inner one
    path.lineTo(cx + a, top + d);
    path.lineTo(right, top + d);
    path.lineTo(left, bottom);
    return path;
}

/// \a rect without the half of its outline that lies inside.
QRect withoutOutline(const QRect& rect, int frameWidth)
{
    const int half = frameWidth / 2;
    return QRect(
        QPoint(bounded(qint64(rect.left()) + half), bounded(qint64(rect.top()) + half)),
        QPoint(bounded(qint64(rect.right()) - half), bounded(qint64(rect.bottom()) - half)));
}

/// The part of \a area that a charge fills, and one row above it: an empty battery shows a line.
QRect filledPart(QRect area, double charge)
{
    const double height = qint64(area.bottom()) - area.top() + 1;
    area.setTop(bounded(qint64(area.bottom()) - boundedRound(height * charge)));
    return area;
}

QBrush hatched(QBrush brush)
{
    brush.setStyle(Qt::BDiagPattern);
    return brush;
}

} // namespace

void CBatteryStatusWidget::paintEvent(QPaintEvent* event)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const bool bodyHit = m_batteryRect.intersects(event->rect());
    const bool topHit = m_topRect.intersects(event->rect());
    const bool charging = (m_flags & BatteryPresent) && (m_flags & BatteryCharging);

    // The fill lies under the outline, and the bolt on top of both.
    if (bodyHit)
        paintBatteryFill(painter);
    if (topHit || bodyHit)
        paintBatteryFrame(painter, topHit, bodyHit);
    if (charging && bodyHit)
        paintChargingIcon(painter);
}

void CBatteryStatusWidget::paintBatteryFill(QStylePainter& painter)
{
    const QRect area = withoutOutline(m_batteryRect, m_frameWidth);
    if (m_flags & BatteryPresent)
        painter.fillRect(filledPart(area, m_charge), m_fillBrush);
    else
        painter.fillRect(area, hatched(palette().brush(QPalette::Current, foregroundRole())));
}

void CBatteryStatusWidget::paintBatteryFrame(QStylePainter& painter, bool paintTop, bool paintBody)
{
    const bool present = m_flags & BatteryPresent;
    const QBrush foreground = palette().brush(QPalette::Current, foregroundRole());
    painter.setPen(QPen(foreground, m_frameWidth, present ? Qt::SolidLine : Qt::DashLine,
                        Qt::SquareCap, Qt::BevelJoin));
    // The painter has no brush yet: the body is drawn before the terminal sets one.
    if (paintBody)
        painter.drawRoundedRect(QRectF(m_batteryRect), m_cornerRadius, m_cornerRadius,
                                Qt::AbsoluteSize);
    if (paintTop) {
        painter.setBrush(present ? foreground : hatched(foreground));
        painter.drawRoundedRect(QRectF(m_topRect), m_cornerRadius, m_cornerRadius,
                                Qt::AbsoluteSize);
    }
}

void CBatteryStatusWidget::paintChargingIcon(QStylePainter& painter)
{
    painter.setPen(QPen(QBrush(boltOutlineColor(), Qt::SolidPattern), m_frameWidth / 2.0,
                        Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(boltBrush());
    painter.drawPath(boltPath(m_chargingIconRect));
}

} // namespace ui
