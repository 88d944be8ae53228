#pragma once

#include "platform_widgets_export.h"

#include <QScrollBar>

namespace ui {
namespace widgets {

/**
 * A scroll bar reduced to a slim indicator, for contents that are scrolled by dragging them.
 *
 * \image html ScrollIndicatorBar.png "An indicator, vertical and horizontal"
 *
 * \snippet ScrollIndicatorBar.cpp ScrollIndicatorBar
 *
 * It has no arrow buttons and no page areas, just a flat groove and a handle of five lines that
 * shade from light to dark. Range, steps, signals and mouse handling are those of its nearest
 * neighbour, QScrollBar; only the thickness and the painting are its own.
 *
 * \anchor looks_ScrollIndicatorBar
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | QPalette::Window | the groove, if its lightness is 120 or less (a dark palette) |
 * | QPalette::Button | the groove otherwise, and the handle, in shades of the role's own colour |
 * | QPalette::Highlight | the handle of an enabled bar that is highlighted |
 * | `ui--widgets--ScrollIndicatorBar` | the roles by \c background-color and \c selection-background-color |
 *
 * The handle is as long as groove * pageStep / (maximum - minimum + pageStep), but at least one
 * pixel, and just one where the range is larger than 0x3FFFFFFF.
 *
 * It can be painted with any range. Of one that is larger than an int, say from INT_MIN to INT_MAX,
 * QScrollBar divides by zero where the mouse presses it.
 */
class PLATFORM_WIDGETS_EXPORT ScrollIndicatorBar : public QScrollBar
{
    Q_OBJECT

public:
    /// Thickness across the orientation, in pixels.
    static const int PERPENDICULAR_SIZE = 5;

    /// A vertical bar without highlight, owned by \a parent.
    explicit ScrollIndicatorBar(QWidget* parent = nullptr);
    /// The same in the given orientation.
    explicit ScrollIndicatorBar(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~ScrollIndicatorBar() override;

    /// QScrollBar's length by PERPENDICULAR_SIZE.
    QSize sizeHint() const override;

public Q_SLOTS:
    /// Paints the handle in the highlight colour while the bar is enabled, or not (the default).
    void setHighlightBar(bool highlight);

protected:
    /// Paints the groove, and the handle where it is damaged.
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_highlightBar;
};

} // namespace widgets
} // namespace ui
