#include "ui/CBatteryStatusWidget.h"

#include "../frame/AccessibleFactory.h"
#include "../frame/Rounding.h"
#include "../frame/Saturated.h"
#include "AccessibleBattery.h"
#include "BatteryFlags.h"

#include <QAccessible>
#include <QPainterPath>
#include <QPaintEvent>
#include <QStylePainter>

#include <limits>

namespace ui {

const double CBatteryStatusWidget::GOLDEN_RATIO = 1.618;

namespace {

constexpr double twoGoldenRatios = 3.236;
constexpr double sixGoldenRatios = 9.708;
/// Height of body and terminal per pixel of width: 1.618 + 1 / 3.236².
constexpr double heightToWidth = 1.7134955147666626;

constexpr int defaultFrameWidth = 4;

/// Rectangles end here, so that no width, height or intersection of them overflows.
// mutant [2 -> 3]: Any bound does of which twice still fits an int; it only keeps absurd geometry
// from overflowing.
constexpr qint64 largestCoordinate = std::numeric_limits<int>::max() / 2;
/// The rasteriser's own limit; a wider pen covers every screen just the same.
// mutant [32767 -> 32766; 32767 -> 32768]: A pixel more or less of a pen that covers every screen.
constexpr double widestPen = 32767;

constexpr QColor boltColor(239, 184, 0);

/// Of every finite \a value. The least result is the least that Qt 5's qRound() is defined for.
int rounded(double value)
{
    using Limits = std::numeric_limits<int>;
    return roundedHalfUp(qBound(double(Limits::min() + 1), value, double(Limits::max())));
}

QRect rectOfEdges(qint64 left, qint64 top, qint64 right, qint64 bottom)
{
    const auto edge = [](qint64 coordinate) {
        return int(qBound(-largestCoordinate, coordinate, largestCoordinate));
    };
    return QRect(QPoint(edge(left), edge(top)), QPoint(edge(right), edge(bottom)));
}

QRect rectOfSize(qint64 left, qint64 top, qint64 width, qint64 height)
{
    return rectOfEdges(left, top, left + width - 1, top + height - 1);
}

QRect bounded(const QRect& rect)
{
    return rectOfEdges(rect.left(), rect.top(), rect.right(), rect.bottom());
}

/// Left edge of a shape \a width wide that stands, with its frame, in the middle of \a contents.
/// Each half is truncated on its own: together they would come out a pixel off for odd widths.
qint64 centredLeft(const QRect& contents, qint64 width, qint64 frameWidth)
{
    return contents.left() + (contents.width() - (frameWidth + width)) / 2 + frameWidth / 2;
}

/// The box of the bolt: as high as \a body is wide, and a frame width off its middle.
QRect boltBox(const QRect& body, qint64 frameWidth)
{
    const qint64 height = body.width();
    const qint64 width = rounded(body.width() / CBatteryStatusWidget::GOLDEN_RATIO);
    return rectOfSize(body.left() + (body.width() - width) / 2 + frameWidth,
                      body.top() + (body.height() - height) / 2 + frameWidth, width, height);
}

/// A gradient from the bottom left to the top right corner of whatever it fills.
QBrush diagonalGradient(const QColor& bottomLeft, const QColor& topRight)
{
    QLinearGradient gradient(0, 1, 1, 0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.0, bottomLeft);
    gradient.setColorAt(1.0, topRight);
    return gradient;
}

// While no assistive technology listens Qt passes nothing on either, but looks for the interface
// first.

void announceCharge(QWidget* battery, int percent)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(battery, qBound(0, percent, 100));
    QAccessible::updateAccessibility(&event);
}

/// The battery is described as absent or charging.
void announceCondition(QWidget* battery)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(battery, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

QPainterPath boltPath(const QRect& box)
{
    const double boxWidth = box.right() - box.left() + 1;
    const double notch = boxWidth / sixGoldenRatios;
    const double barHeight = boxWidth / CBatteryStatusWidget::GOLDEN_RATIO;
    const int halfWidth = (box.right() - box.left() + 1) / 2; // whole pixels
    const double centre = box.left() + halfWidth;
    const double left = box.left();
    const double top = box.top();
    const double right = box.right();
    const double bottom = box.bottom();

    QPainterPath path(QPointF(left, bottom));
    path.lineTo(centre - notch, top + barHeight + notch);
    path.lineTo(left + notch, top + barHeight + notch);
    path.lineTo(centre - notch, top);
    // The bar ends at the outer edge of the last pixel, the tip below it at the pixel itself.
    path.lineTo(right + 1 - notch, top);
    path.lineTo(centre + notch, top + barHeight);
    path.lineTo(right, top + barHeight);
    path.lineTo(left, bottom);
    return path;
}

} // namespace

CBatteryStatusWidget::CBatteryStatusWidget(QWidget* parent)
    : QWidget(parent)
    // mutant [sign; 1 -> 0; 1 -> 2]: The constructor's body sets the width; any other than that
    // will do.
    , m_frameWidth(-1) // differs from the default, which is set below
    // mutant [sign; 1.0 -> 0.9; 1.0 -> 1.1]: The constructor's body sets it along with the width.
    , m_cornerRadius(-1.0)
    , m_flags(BatteryPresent)
    , m_charge(0.0)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setFrameWidth(defaultFrameWidth);
    // mutant [order]: Neither depends on the other.
    setFillColor(QColor(Qt::blue));
    registerAccessible<CBatteryStatusWidget, AccessibleBattery::make>();
}

CBatteryStatusWidget::~CBatteryStatusWidget() = default;

int CBatteryStatusWidget::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    const int bodyWidth =
        getBatteryRectWidth(saturated(qint64(width) - margins.left() - margins.right()));
    const int bodyHeight = getBatteryRectHeight(bodyWidth);
    const int topHeight = getTopRectHeight(getTopRectWidth(bodyWidth));
    return saturated(qint64(margins.top()) + margins.bottom()
                     + getTotalHeight(bodyHeight, topHeight));
}

int CBatteryStatusWidget::widthForHeight(int height) const
{
    return rounded((double(height) - m_frameWidth) / heightToWidth + m_frameWidth);
}

int CBatteryStatusWidget::getBatteryRectWidth(int width) const
{
    return saturated(qint64(width) - m_frameWidth);
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): part of the interface
int CBatteryStatusWidget::getBatteryRectHeight(int width) const
{
    return rounded(width * GOLDEN_RATIO);
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): part of the interface
int CBatteryStatusWidget::getTopRectWidth(int width) const
{
    return rounded(width / twoGoldenRatios);
}

int CBatteryStatusWidget::getTopRectHeight(int width) const
{
    return getTopRectWidth(width);
}

int CBatteryStatusWidget::getTotalHeight(int bodyHeight, int topHeight) const
{
    return saturated(qint64(bodyHeight) + topHeight + m_frameWidth);
}

void CBatteryStatusWidget::setFrameWidth(int width)
{
    if (m_frameWidth == width)
        return;

    // mutant [order]: Neither depends on the other.
    m_frameWidth = width;
    m_cornerRadius = width * GOLDEN_RATIO;
    update();
}

void CBatteryStatusWidget::setFillColor(QColor const& color)
{
    m_fillBrush = diagonalGradient(color.darker(200), color.lighter(150));
    if (m_flags & BatteryPresent)
        update(m_batteryRect);
}

void CBatteryStatusWidget::setChargePercentage(int percent)
{
    if (percent == rounded(m_charge * 100))
        return;

    m_charge = qBound(0, percent, 100) / 100.0;
    if (m_flags & BatteryPresent)
        update(m_batteryRect);
    announceCharge(this, percent);
}

void CBatteryStatusWidget::setBatteryPresent(bool present)
{
    const int flags = present ? m_flags | BatteryPresent : m_flags & ~BatteryPresent;
    if (m_flags == flags)
        return;

    m_flags = flags;
    update();
    announceCondition(this);
}

void CBatteryStatusWidget::setBatteryCharging(bool charging)
{
    const int flags = charging ? m_flags | BatteryCharging : m_flags & ~BatteryCharging;
    if (m_flags == flags)
        return;

    m_flags = flags;
    update();
    announceCondition(this);
}

void CBatteryStatusWidget::resizeEvent(QResizeEvent* event)
{
    // mutant [dropped]: Qt's handler does nothing.
    QWidget::resizeEvent(event);

    const QRect contents = bounded(contentsRect());
    const int outerWidth = qMin(widthForHeight(contents.height()), contents.width());
    // The frame width goes off here and in getBatteryRectWidth() again, other than in
    // heightForWidth(): the battery keeps clear of the sides by half a frame.
    const int bodyWidth = getBatteryRectWidth(saturated(qint64(outerWidth) - m_frameWidth));
    const int bodyHeight = getBatteryRectHeight(bodyWidth);
    const int topWidth = getTopRectWidth(bodyWidth);
    const int topHeight = getTopRectHeight(topWidth);
    const qint64 totalHeight = getTotalHeight(bodyHeight, topHeight);
    const qint64 top = contents.top() + (contents.height() - totalHeight) / 2;

    // mutant [order]: Neither depends on the other.
    m_topRect = rectOfSize(centredLeft(contents, topWidth, m_frameWidth), top, topWidth, topHeight);
    m_batteryRect = rectOfSize(centredLeft(contents, bodyWidth, m_frameWidth), top + topHeight,
                               bodyWidth, bodyHeight);
    m_chargingIconRect = boltBox(m_batteryRect, m_frameWidth);
}

void CBatteryStatusWidget::paintEvent(QPaintEvent* event)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const bool bodyHit = m_batteryRect.intersects(event->rect());
    const bool topHit = m_topRect.intersects(event->rect());
    const bool charging = (m_flags & BatteryPresent) && (m_flags & BatteryCharging);
    if (bodyHit)
        paintBatteryFill(painter);
    if (topHit || bodyHit)
        paintBatteryFrame(painter, topHit, bodyHit);
    if (charging && bodyHit)
        paintChargingIcon(painter);
}

void CBatteryStatusWidget::paintBatteryFill(QStylePainter& painter)
{
    const qint64 inset = m_frameWidth / 2;
    QRect area = rectOfEdges(m_batteryRect.left() + inset, m_batteryRect.top() + inset,
                             m_batteryRect.right() - inset, m_batteryRect.bottom() - inset);

    if (!(m_flags & BatteryPresent)) {
        QBrush hatch = palette().brush(QPalette::Current, foregroundRole());
        hatch.setStyle(Qt::BDiagPattern);
        painter.fillRect(area, hatch);
        return;
    }

    // One row more than the charge asks for: an empty battery keeps a line at the bottom.
    const int filledHeight = rounded((area.bottom() - area.top() + 1) * m_charge);
    area.setTop(area.bottom() - filledHeight);
    painter.fillRect(area, m_fillBrush);
}

void CBatteryStatusWidget::paintBatteryFrame(QStylePainter& painter, bool paintTop, bool paintBody)
{
    const bool present = m_flags & BatteryPresent;
    const QBrush foreground = palette().brush(QPalette::Current, foregroundRole());
    painter.setPen(QPen(foreground, qMin(double(m_frameWidth), widestPen),
                        present ? Qt::SolidLine : Qt::DashLine, Qt::SquareCap, Qt::BevelJoin));

    // The painter has no brush yet: of the body only the outline is drawn, over the fill.
    if (paintBody)
        painter.drawRoundedRect(QRectF(m_batteryRect), m_cornerRadius, m_cornerRadius);

    if (paintTop) {
        QBrush brush = foreground;
        if (!present)
            brush.setStyle(Qt::BDiagPattern);
        painter.setBrush(brush);
        painter.drawRoundedRect(QRectF(m_topRect), m_cornerRadius, m_cornerRadius);
    }
}

void CBatteryStatusWidget::paintChargingIcon(QStylePainter& painter)
{
    static const QColor penColor = boltColor.darker(150);
    painter.setPen(QPen(penColor, qMin(m_frameWidth / 2.0, widestPen), Qt::SolidLine, Qt::SquareCap,
                        Qt::BevelJoin));
    painter.setBrush(diagonalGradient(boltColor.darker(125), boltColor.lighter(125)));
    painter.drawPath(boltPath(m_chargingIconRect));
}

} // namespace ui
