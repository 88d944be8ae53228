#include "ScrollIndicatorAppearance.h"

#include "Painting.h"

#include <ui/ScrollIndicatorBar.h>

#include <QPainter>

namespace test {

namespace {

QColor derived(const QColor& button, double saturation, double value)
{
    return QColor::fromHsv(button.hsvHue(), std::min(255, int(button.hsvSaturation() * saturation)),
                           std::min(255, int(button.value() * value)));
}

QColor firstLine(const ScrollIndicatorAppearance& appearance)
{
    return appearance.highlighted && appearance.enabled
        ? appearance.color(QPalette::Highlight)
        : derived(appearance.color(QPalette::Button), 1.9, 0.7);
}

void drawLine(QPainter& painter, const ScrollIndicatorAppearance& appearance, int index,
              const QColor& color)
{
    const int inset = index == 0 || index == 4;
    const int first = appearance.handleStart + inset;
    const int last = appearance.handleStart + appearance.handleLength - 1 - inset;
    painter.setPen(QPen(color, 1));
    if (appearance.orientation == Qt::Horizontal)
        painter.drawLine(first, index, last, index);
    else
        painter.drawLine(index, first, index, last);
}

} // namespace

ScrollIndicatorAppearance& ScrollIndicatorAppearance::horizontal()
{
    orientation = Qt::Horizontal;
    size.transpose();
    return *this;
}

QColor ScrollIndicatorAppearance::color(QPalette::ColorRole role) const
{
    return palette.color(enabled ? QPalette::Active : QPalette::Disabled, role);
}

QColor ScrollIndicatorAppearance::groove() const
{
    const QColor window = color(QPalette::Window);
    return window.lightness() <= 120 ? window : derived(color(QPalette::Button), 2.6, 0.9);
}

void apply(ScrollIndicatorAppearance& appearance, ui::widgets::ScrollIndicatorBar& bar)
{
    bar.setOrientation(appearance.orientation);
    bar.resize(appearance.size);
    bar.setRange(appearance.minimum, appearance.maximum);
    bar.setPageStep(appearance.pageStep);
    bar.setValue(appearance.value);
    bar.setHighlightBar(appearance.highlighted);
    bar.setEnabled(appearance.enabled);
    bar.setInvertedAppearance(appearance.inverted);
    bar.setPalette(appearance.palette);
    bar.setLayoutDirection(appearance.direction);
    appearance.palette = bar.palette(); // with what it takes from the application's
}

QImage expected(const ScrollIndicatorAppearance& appearance)
{
    QImage image = test::canvas(appearance.size, appearance.dpr, appearance.groove());
    QPainter painter(&image);
    QColor color = firstLine(appearance);
    for (int i = 0; i < 5; ++i) {
        drawLine(painter, appearance, i, color);
        color = color.darker(108);
    }
    return image;
}

} // namespace test
