#include "ScrollIndicatorSheet.h"

#include <ui/ScrollIndicatorBar.h>

using ui::widgets::ScrollIndicatorBar;

namespace {

constexpr int length = 130;
constexpr int range = 100;
constexpr int pageStep = 50;

ScrollIndicatorBar* makeBar(Qt::Orientation orientation, int value)
{
    auto* bar = new ScrollIndicatorBar(orientation);
    const QSize vertical(ScrollIndicatorBar::PERPENDICULAR_SIZE, length);
    bar->setFixedSize(orientation == Qt::Vertical ? vertical : vertical.transposed());
    bar->setRange(0, range);
    bar->setPageStep(pageStep);
    bar->setValue(value);
    return bar;
}

auto vertical(int value)
{
    return [value] { return makeBar(Qt::Vertical, value); };
}

auto horizontal(int value)
{
    return [value] { return makeBar(Qt::Horizontal, value); };
}

ScrollIndicatorBar* makeHighlighted()
{
    ScrollIndicatorBar* bar = makeBar(Qt::Vertical, range / 2);
    bar->setHighlightBar(true);
    return bar;
}

QWidget* makeLong()
{
    ScrollIndicatorBar* bar = makeBar(Qt::Vertical, range / 2);
    bar->setPageStep(range / 20);
    return bar;
}

QWidget* makeIdle()
{
    ScrollIndicatorBar* bar = makeBar(Qt::Vertical, 0);
    bar->setRange(0, 0);
    return bar;
}

} // namespace

ClassSheet ScrollIndicatorSheet::sheet()
{
    return {QStringLiteral("ScrollIndicatorBar"),
            4,
            {
                {tr("At the top"), vertical(0)},
                {tr("In the middle"), vertical(range / 2)},
                {tr("At the bottom"), vertical(range)},
                {tr("Nothing to scroll"), makeIdle},
                {tr("Highlighted"), makeHighlighted},
                {tr("Much to scroll"), makeLong},
                {tr("Dark palette"), vertical(range / 2), ClassState::Dark},
                {tr("Dark, highlighted"), makeHighlighted, ClassState::Dark},
                {tr("Horizontal, at the start"), horizontal(0)},
                {tr("Horizontal, in the middle"), horizontal(range / 2)},
                {tr("Horizontal, at the end"), horizontal(range)},
                {tr("Right to left, near the start"), horizontal(range / 4), ClassState::Light,
                 Qt::RightToLeft},
            }};
}
