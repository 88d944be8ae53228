#include "ui/CBatteryStatusWidget.h"

#include "../frame/accessibility/Accessibility.h"
#include "BatteryFlags.h"
#include "BoundedInt.h"

#include <QAccessible>
#include <QLinearGradient>

namespace ui {

namespace {

constexpr int defaultFrameWidth = 4;

/// No frame has this width, so that setting any takes effect.
constexpr int unsetFrameWidth = -1;

/// Width of the body to that of the terminal: twice the golden ratio.
constexpr double bodyToTerminal = 3.236;

/// Height of body and terminal to the body's width: 1.618 + 1 / 3.236².
constexpr double heightToWidth = 1.7134955147666626;

int withFlag(int flags, BatteryFlag flag, bool on)
{
    return on ? flags | flag : flags & ~flag;
}

double fractionOf(int percent)
{
    return qBound(0, percent, 100) / 100.0;
}

/// From the bottom left to the top right of whatever it fills.
QBrush fillBrush(const QColor& color)
{
    QLinearGradient gradient(0, 1, 1, 0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.0, color.darker(200));
    gradient.setColorAt(1.0, color.lighter(150));
    return QBrush(gradient);
}

/// Costs nothing while no assistive technology listens.
void announceCharge(QWidget* battery, int percent)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(battery, qBound(0, percent, 100));
    QAccessible::updateAccessibility(&event);
}

/**
 * Left edge of a shape that is centred as if it were a frame width wider, and then moved by half of
 * it, so that an outline of that width stays inside. Both halves truncate.
 */
int centredLeft(const QRect& contents, int width, int frameWidth)
{
    const qint64 spare = contents.width() - (qint64(frameWidth) + width);
    return bounded(contents.left() + spare / 2 + frameWidth / 2);
}

} // namespace

const double CBatteryStatusWidget::GOLDEN_RATIO = 1.618;

CBatteryStatusWidget::CBatteryStatusWidget(QWidget* parent)
    : QWidget(parent)
    , m_frameWidth(unsetFrameWidth)
    , m_cornerRadius(-1.0)
    , m_flags(BatteryPresent)
    , m_charge(0.0)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setFrameWidth(defaultFrameWidth);
    setFillColor(QColor(Qt::blue));
    offerAccessibility();
}

CBatteryStatusWidget::~CBatteryStatusWidget() = default;

int CBatteryStatusWidget::heightForWidth(int w) const
{
    const QMargins m = contentsMargins();
    const int bodyWidth = getBatteryRectWidth(bounded(qint64(w) - m.left() - m.right()));
    const int bodyHeight = getBatteryRectHeight(bodyWidth);
    const int topHeight = getTopRectHeight(getTopRectWidth(bodyWidth));
    return bounded(qint64(m.top()) + m.bottom() + getTotalHeight(bodyHeight, topHeight));
}

void CBatteryStatusWidget::setFrameWidth(int width)
{
    if (width == m_frameWidth)
        return;
    m_frameWidth = width;
    m_cornerRadius = width * GOLDEN_RATIO;
    update();
}

void CBatteryStatusWidget::setFillColor(QColor const& color)
{
    m_fillBrush = fillBrush(color);
    if (m_flags & BatteryPresent)
        update(m_batteryRect);
}

int CBatteryStatusWidget::getBatteryRectWidth(int w) const
{
    return bounded(qint64(w) - m_frameWidth);
}

int CBatteryStatusWidget::getBatteryRectHeight(int w) const
{
    return boundedRound(w * GOLDEN_RATIO);
}

int CBatteryStatusWidget::getTopRectWidth(int w) const
{
    return boundedRound(w / bodyToTerminal);
}

int CBatteryStatusWidget::getTopRectHeight(int w) const
{
    return getTopRectWidth(w);
}

int CBatteryStatusWidget::getTotalHeight(int bodyHeight, int topHeight) const
{
    return bounded(qint64(bodyHeight) + topHeight + m_frameWidth);
}

int CBatteryStatusWidget::widthForHeight(int h) const
{
    return boundedRound((double(h) - m_frameWidth) / heightToWidth + m_frameWidth);
}

void CBatteryStatusWidget::setChargePercentage(int percent)
{
    if (percent == qRound(m_charge * 100))
        return;
    m_charge = fractionOf(percent);
    if (m_flags & BatteryPresent)
        update(m_batteryRect);
    announceCharge(this, percent);
}

void CBatteryStatusWidget::setBatteryPresent(bool present)
{
    const int flags = withFlag(m_flags, BatteryPresent, present);
    if (flags == m_flags)
        return;
    m_flags = flags;
    update();
}

void CBatteryStatusWidget::setBatteryCharging(bool charging)
{
    const int flags = withFlag(m_flags, BatteryCharging, charging);
    if (flags == m_flags)
        return;
    m_flags = flags;
    update();
}

void CBatteryStatusWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);

    const QRect contents = contentsRect();
    const int outerWidth = qMin(widthForHeight(contents.height()), contents.width());
    // The frame width comes off a second time here, unlike in heightForWidth().
    const int bodyWidth = getBatteryRectWidth(bounded(qint64(outerWidth) - m_frameWidth));
    const int bodyHeight = getBatteryRectHeight(bodyWidth);
    const int topWidth = getTopRectWidth(bodyWidth);
    const int topHeight = getTopRectHeight(topWidth);
    const qint64 spareHeight = qint64(contents.height()) - getTotalHeight(bodyHeight, topHeight);
    const int top = bounded(contents.top() + spareHeight / 2);

    m_topRect = QRect(centredLeft(contents, topWidth, m_frameWidth), top, topWidth, topHeight);
    m_batteryRect = QRect(centredLeft(contents, bodyWidth, m_frameWidth),
                          bounded(qint64(top) + topHeight), bodyWidth, bodyHeight);

    // Centred in the body and then moved by a whole frame width, right and down.
    const int iconWidth = boundedRound(bodyWidth / GOLDEN_RATIO);
    m_chargingIconRect = QRect(
        bounded(qint64(m_batteryRect.left()) + (qint64(bodyWidth) - iconWidth) / 2 + m_frameWidth),
        bounded(qint64(m_batteryRect.top()) + (qint64(bodyHeight) - bodyWidth) / 2 + m_frameWidth),
        iconWidth, bodyWidth);
}

} // namespace ui
