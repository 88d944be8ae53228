#include "ReferenceBattery.h"

#include "QtVersions.h"

#include <QPainterPath>
#include <QPaintEvent>
#include <QStylePainter>

namespace test {

namespace {

QBrush gradient(const QColor& first, const QColor& last)
{
    QLinearGradient gradient(0, 1, 1, 0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.0, first);
    gradient.setColorAt(1.0, last);
    return gradient;
}

} // namespace

ReferenceBattery::ReferenceBattery(QWidget* parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setFrameWidth(4);
    setFillColor(QColor(Qt::blue));
}

int ReferenceBattery::getBatteryRectWidth(int w) const
{
    return w - m_frameWidth;
}

int ReferenceBattery::getBatteryRectHeight(int w)
{
    return roundedHalfUp(w * 1.618);
}

int ReferenceBattery::getTopRectWidth(int w)
{
    return roundedHalfUp(w / 3.236);
}

int ReferenceBattery::getTopRectHeight(int w)
{
    return getTopRectWidth(w);
}

int ReferenceBattery::getTotalHeight(int bodyHeight, int topHeight) const
{
    return bodyHeight + topHeight + m_frameWidth;
}

int ReferenceBattery::widthForHeight(int h) const
{
    return roundedHalfUp((h - m_frameWidth) / 1.7134955147666626 + m_frameWidth);
}

int ReferenceBattery::heightForWidth(int w) const
{
    const QMargins m = contentsMargins();
    const int bw = getBatteryRectWidth(w - m.left() - m.right());
    const int bodyHeight = getBatteryRectHeight(bw);
    const int topHeight = getTopRectHeight(getTopRectWidth(bw));
    return m.top() + m.bottom() + getTotalHeight(bodyHeight, topHeight);
}

void ReferenceBattery::setFrameWidth(int width)
{
    if (width == m_frameWidth)
        return;
    m_frameWidth = width;
    m_cornerRadius = width * 1.618;
    update();
}

void ReferenceBattery::setFillColor(const QColor& color)
{
    m_fillBrush = gradient(color.darker(200), color.lighter(150));
    if (m_flags & 1)
        update(m_batteryRect);
}

void ReferenceBattery::setChargePercentage(int percent)
{
    if (percent == roundedHalfUp(m_charge * 100))
        return;
    if (percent > 100)
        m_charge = 1.0;
    else if (percent > 0)
        m_charge = percent / 100.0;
    else
        m_charge = 0.0;
    if (m_flags & 1)
        update(m_batteryRect);
}

void ReferenceBattery::setBatteryPresent(bool present)
{
    const int before = m_flags;
    m_flags = present ? m_flags | 1 : m_flags & ~1;
    if (m_flags != before)
        update();
}

void ReferenceBattery::setBatteryCharging(bool charging)
{
    const int before = m_flags;
    m_flags = charging ? m_flags | 2 : m_flags & ~2;
    if (m_flags != before)
        update();
}

void ReferenceBattery::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const QRect cr = contentsRect();
    const int fw = m_frameWidth;
    const int cw = cr.width();
    const int ch = cr.height();
    const int w = widthForHeight(ch);
    const int bw = getBatteryRectWidth(qMin(w, cw) - fw);
    const int topW = getTopRectWidth(bw);
    const int bodyH = getBatteryRectHeight(bw);
    const int topH = getTopRectHeight(topW);
    const int total = getTotalHeight(bodyH, topH);
    const int y0 = cr.top() + (ch - total) / 2;
    m_batteryRect = QRect(cr.left() + (cw - (fw + bw)) / 2 + fw / 2, y0 + topH, bw, bodyH);
    m_topRect.setCoords(0, y0, 0, m_batteryRect.top() - 1);
    m_topRect.setLeft(cr.left() + (cw - (fw + topW)) / 2 + fw / 2);
    m_topRect.setWidth(topW);
    const int iconW = roundedHalfUp(bw / 1.618);
    m_chargingIconRect = QRect(m_batteryRect.left() + (bw - iconW) / 2 + fw,
                               m_batteryRect.top() + (bodyH - bw) / 2 + fw, iconW, bw);
}

void ReferenceBattery::paintEvent(QPaintEvent* event)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool bodyHit = m_batteryRect.intersects(event->rect());
    const bool topHit = m_topRect.intersects(event->rect());
    if (bodyHit)
        paintBatteryFill(painter);
    if (topHit || bodyHit)
        paintBatteryFrame(painter, topHit, bodyHit);
    if (m_flags == 3 && bodyHit)
        paintChargingIcon(painter);
}

void ReferenceBattery::paintBatteryFill(QStylePainter& painter)
{
    const int h = m_frameWidth / 2;
    QRect area;
    area.setCoords(m_batteryRect.left() + h, m_batteryRect.top() + h, m_batteryRect.right() - h,
                   m_batteryRect.bottom() - h);
    if (!(m_flags & 1)) {
        QBrush brush = palette().brush(QPalette::Current, foregroundRole());
        brush.setStyle(Qt::BDiagPattern);
        painter.fillRect(area, brush);
        return;
    }
    const int fillH = roundedHalfUp((area.bottom() - area.top() + 1) * m_charge);
    area.setTop(area.bottom() - fillH);
    painter.fillRect(area, m_fillBrush);
}

void ReferenceBattery::paintBatteryFrame(QStylePainter& painter, bool paintTop, bool paintBody)
{
    const QBrush foreground = palette().brush(QPalette::Current, foregroundRole());
    QPen pen(foreground, m_frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    pen.setStyle(m_flags & 1 ? Qt::SolidLine : Qt::DashLine);
    painter.setPen(pen);
    if (paintBody)
        painter.drawRoundedRect(QRectF(m_batteryRect), m_cornerRadius, m_cornerRadius,
                                Qt::AbsoluteSize);
    if (!paintTop)
        return;
    QBrush brush = foreground;
    if (!(m_flags & 1))
        brush.setStyle(Qt::BDiagPattern);
    painter.setBrush(brush);
    painter.drawRoundedRect(QRectF(m_topRect), m_cornerRadius, m_cornerRadius);
}

void ReferenceBattery::paintChargingIcon(QStylePainter& painter)
{
    const int left = m_chargingIconRect.left();
    const int top = m_chargingIconRect.top();
    const int right = m_chargingIconRect.right();
    const int bottom = m_chargingIconRect.bottom();
    const int iw = right - left + 1;
    const double a = iw / 9.708;
    const double d = iw / 1.618;
    const double cx = left + iw / 2;
    QPainterPath path(QPointF(left, bottom));
    path.lineTo(cx - a, top + d + a);
    path.lineTo(left + a, top + d + a);
    path.lineTo(cx - a, top);
    path.lineTo(right + 1 - a, top);
    path.lineTo(cx + a, top + d);
    path.lineTo(right, top + d);
    path.lineTo(left, bottom);
    const QColor bolt(239, 184, 0);
    painter.setPen(QPen(QBrush(bolt.darker(150), Qt::SolidPattern), m_frameWidth / 2.0,
                        Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(gradient(bolt.darker(125), bolt.lighter(125)));
    painter.drawPath(path);
}

} // namespace test
