#include "ui/ScrollIndicatorBar.h"

#include <QPaintEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include <limits>

namespace ui {
namespace widgets {

namespace {

/// A palette whose window is as dark as this, or darker, is a dark palette.
constexpr int darkWindowLightness = 120;

/// Beyond this range the handle is as short as it gets.
constexpr uint longestProportionalRange = uint(std::numeric_limits<int>::max()) / 2;

/// Darkens each line of the handle against the one before, in percent.
constexpr int lineDarkening = 108;

QColor buttonShade(const QPalette& palette, double saturation, double value)
{
    int buttonHue{};
    int buttonSaturation{};
    int buttonValue{};
    palette.button().color().getHsv(&buttonHue, &buttonSaturation, &buttonValue);
    return QColor::fromHsv(buttonHue, qMin(int(buttonSaturation * saturation), 255),
                           // mutant [255 -> 254; 255 -> 256]: A value times 0.9 or 0.7 does not
                           // reach the bound.
                           qMin(int(buttonValue * value), 255), 255);
}

QColor grooveColor(const QPalette& palette)
{
    const QColor window = palette.window().color();
    return window.lightness() <= darkWindowLightness ? window : buttonShade(palette, 2.6, 0.9);
}

QColor handleColor(const QPalette& palette, bool highlighted)
{
    return highlighted ? palette.highlight().color() : buttonShade(palette, 1.9, 0.7);
}

uint rangeOf(const QStyleOptionSlider& option)
{
    return uint(option.maximum) - uint(option.minimum);
}

int handleLength(const QStyleOptionSlider& option, int span)
{
    if (option.maximum == option.minimum)
        return span;
    const uint range = rangeOf(option);
    if (range > longestProportionalRange)
        return qMin(1, span);
    const qint64 length = qint64(option.pageStep) * span / qint64(range + uint(option.pageStep));
    return int(qMin(qMax<qint64>(length, 1), qint64(span)));
}

int handleStart(const QStyleOptionSlider& option, int freeSpace)
{
    // QStyle's function overflows, and may divide by zero, where the range does not fit an int. At
    // half the scale it fits, and a step still is far less than a pixel.
    const int scale = rangeOf(option) > uint(std::numeric_limits<int>::max()) ? 2 : 1;
    return QStyle::sliderPositionFromValue(option.minimum / scale, option.maximum / scale,
                                           option.sliderPosition / scale, freeSpace,
                                           option.upsideDown);
}

QRect handleRect(const QStyleOptionSlider& option)
{
    const bool horizontal = option.orientation == Qt::Horizontal;
    const int span = horizontal ? option.rect.width() : option.rect.height();
    const int length = handleLength(option, span);
    const int start = handleStart(option, span - length);
    const QRect logical = horizontal ? QRect(start, 0, length, option.rect.height())
                                     : QRect(0, start, option.rect.width(), length);
    return QStyle::visualRect(option.direction, option.rect, logical);
}

QLine handleLine(const QRect& handle, Qt::Orientation orientation, int index)
{
    const bool outermost = index == 0 || index == ScrollIndicatorBar::PERPENDICULAR_SIZE - 1;
    const int inset = outermost ? 1 : 0; // rounds the ends off
    if (orientation == Qt::Horizontal) {
        const int y = handle.top() + index;
        return QLine(handle.left() + inset, y, handle.right() - inset, y);
    }
    const int x = handle.left() + index;
    return QLine(x, handle.top() + inset, x, handle.bottom() - inset);
}

void drawHandle(QPainter& painter, const QRect& handle, Qt::Orientation orientation,
                const QColor& firstColor)
{
    // mutant [dropped]: Lines have no inside.
    painter.setBrush(Qt::NoBrush);
    QColor color = firstColor;
    for (int i = 0; i < ScrollIndicatorBar::PERPENDICULAR_SIZE; ++i) {
        painter.setPen(QPen(color, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        // mutant [order]: The pen has its colour by then.
        painter.drawLine(handleLine(handle, orientation, i));
        color = color.darker(lineDarkening);
    }
}

} // namespace

const int ScrollIndicatorBar::PERPENDICULAR_SIZE;

ScrollIndicatorBar::ScrollIndicatorBar(QWidget* parent)
    : QScrollBar(parent)
    , m_highlightBar(false)
{
}

ScrollIndicatorBar::ScrollIndicatorBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent)
    , m_highlightBar(false)
{
}

ScrollIndicatorBar::~ScrollIndicatorBar() = default;

QSize ScrollIndicatorBar::sizeHint() const
{
    QSize size = QScrollBar::sizeHint();
    if (orientation() == Qt::Vertical)
        size.setWidth(PERPENDICULAR_SIZE);
    else
        size.setHeight(PERPENDICULAR_SIZE);
    return size;
}

void ScrollIndicatorBar::setHighlightBar(bool highlight)
{
    if (highlight == m_highlightBar)
        return;
    m_highlightBar = highlight;
    update();
}

void ScrollIndicatorBar::paintEvent(QPaintEvent* event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);

    QStylePainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(grooveColor(palette()));
    const QRect damaged = event->rect();
    painter.drawRect(damaged);

    const QRect handle = handleRect(option);
    if (!handle.intersects(damaged))
        return;
    const bool highlighted = option.state.testFlag(QStyle::State_Enabled) && m_highlightBar;
    drawHandle(painter, handle, option.orientation, handleColor(palette(), highlighted));
}

} // namespace widgets
} // namespace ui
