#pragma once

#include "Palettes.h"

#include <QImage>
#include <QPalette>
#include <QSize>

namespace ui {
namespace widgets {
class ScrollIndicatorBar;
}
} // namespace ui

namespace test {

/// The state of a bar, and where its handle has to be.
struct ScrollIndicatorAppearance
{
    Qt::Orientation orientation = Qt::Vertical;
    QSize size = QSize(5, 220);
    int minimum = 0;
    int maximum = 100;
    int pageStep = 10;
    int value = 0;
    int handleStart = 0; ///< Along the orientation, from the left or the top.
    int handleLength = 20;
    bool highlighted = false;
    bool enabled = true;
    bool inverted = false;
    QPalette palette = lightPalette();
    qreal dpr = 1.0;
    Qt::LayoutDirection direction = Qt::LeftToRight;

    /// The same bar, lying.
    ScrollIndicatorAppearance& horizontal();
    QColor color(QPalette::ColorRole role) const;
    QColor groove() const;
};

/// Brings \a bar to the state of \a appearance, which takes over what the palette inherits.
void apply(ScrollIndicatorAppearance& appearance, ui::widgets::ScrollIndicatorBar& bar);

/// The picture that follows from \a appearance.
QImage expected(const ScrollIndicatorAppearance& appearance);

} // namespace test
