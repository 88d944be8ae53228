#include "ScrollIndicatorLook.h"

#include "Painting.h"

#include <ui/ScrollIndicatorBar.h>

#include <QPainter>

namespace {

QColor derived(const QColor& button, double saturation, double value)
{
    return QColor::fromHsv(button.hsvHue(), std::min(255, int(button.hsvSaturation() * saturation)),
                           std::min(255, int(button.value() * value)));
}

QColor firstLine(const ScrollIndicatorLook& look)
{
    return look.highlighted && look.enabled ? look.color(QPalette::Highlight)
                                            : derived(look.color(QPalette::Button), 1.9, 0.7);
}

void drawLine(QPainter& painter, const ScrollIndicatorLook& look, int index, const QColor& color)
{
    const int inset = index == 0 || index == 4;
    const int first = look.handleStart + inset;
    const int last = look.handleStart + look.handleLength - 1 - inset;
    painter.setPen(QPen(color, 1));
    if (look.orientation == Qt::Horizontal)
        painter.drawLine(first, index, last, index);
    else
        painter.drawLine(index, first, index, last);
}

} // namespace

ScrollIndicatorLook& ScrollIndicatorLook::horizontal()
{
    orientation = Qt::Horizontal;
    size.transpose();
    return *this;
}

QColor ScrollIndicatorLook::color(QPalette::ColorRole role) const
{
    return palette.color(enabled ? QPalette::Active : QPalette::Disabled, role);
}

QColor ScrollIndicatorLook::groove() const
{
    const QColor window = color(QPalette::Window);
    return window.lightness() <= 120 ? window : derived(color(QPalette::Button), 2.6, 0.9);
}

void apply(ScrollIndicatorLook& look, ui::widgets::ScrollIndicatorBar& bar)
{
    bar.setOrientation(look.orientation);
    bar.resize(look.size);
    bar.setRange(look.minimum, look.maximum);
    bar.setPageStep(look.pageStep);
    bar.setValue(look.value);
    bar.setHighlightBar(look.highlighted);
    bar.setEnabled(look.enabled);
    bar.setInvertedAppearance(look.inverted);
    bar.setPalette(look.palette);
    bar.setLayoutDirection(look.direction);
    look.palette = bar.palette(); // with what it takes from the application's
}

QImage expected(const ScrollIndicatorLook& look)
{
    QImage image = test::canvas(look.size, look.dpr, look.groove());
    QPainter painter(&image);
    QColor color = firstLine(look);
    for (int i = 0; i < 5; ++i) {
        drawLine(painter, look, i, color);
        color = color.darker(108);
    }
    return image;
}
