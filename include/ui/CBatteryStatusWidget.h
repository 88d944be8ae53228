#pragma once

#include "platform_widgets_export.h"

#include <QBrush>
#include <QRect>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QColor;
class QStylePainter;
QT_END_NAMESPACE

namespace ui {

/**
 * An upright battery that shows its charge.
 *
 * The charge rises from the bottom of a rounded body with a small terminal on top. Without a
 * battery body and terminal are hatched and their outlines dashed; while the battery charges a
 * lightning bolt lies over the body. All proportions derive from #GOLDEN_RATIO.
 *
 * \image html CBatteryStatusWidget.png "A battery in its states"
 *
 * \snippet CBatteryStatusWidget.cpp CBatteryStatusWidget
 *
 * The nearest neighbour in Qt is a vertical QProgressBar, which has a range, a text and the look
 * of the style. This widget has a fixed range of 0 to 100 percent, no text and a look of its own.
 *
 * The battery keeps its shape: the size policy has height-for-width on, and in a rectangle of
 * another shape the battery is fitted to the smaller side and centred in the contents rectangle.
 * There is no size hint; the layout or a fixed size decides how large the battery is.
 *
 * \anchor looks_CBatteryStatusWidget
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | foregroundRole(), QPalette::WindowText by default | outline, terminal and hatch |
 * | `ui--CBatteryStatusWidget` | the same by \c color |
 * | setFillColor() | the charge; no style sheet reaches it |
 *
 * The bolt is always amber. To assistive technology the battery is a progress bar from 0 to 100,
 * described as charging or absent.
 */
class PLATFORM_WIDGETS_EXPORT CBatteryStatusWidget : public QWidget
{
    Q_OBJECT

public:
    /// The ratio of the body's height to its width, from which all other measures derive.
    static const double GOLDEN_RATIO;

    /// Makes a present, empty battery that does not charge, blue, with a frame of 4 pixels.
    explicit CBatteryStatusWidget(QWidget* parent = nullptr);
    ~CBatteryStatusWidget() override;

    /// The height, in pixels, at which a battery as wide as \a width with its margins fits exactly.
    int heightForWidth(int width) const override;
    /// The width of a battery, without margins, that is \a height pixels high.
    int widthForHeight(int height) const;

    /**
     * \name Measures of the parts
     * In pixels, for the present frame width. Results beyond the range of int are cut off there.
     * @{
     */
    int getBatteryRectWidth(int width) const; ///< Width of the body in a battery \a width wide.
    int getBatteryRectHeight(int width) const; ///< Height of a body \a width wide.
    int getTopRectWidth(int width) const; ///< Width of the terminal on a body \a width wide.
    int getTopRectHeight(int width) const; ///< Height of a terminal \a width wide.
    /// Height of the battery whose body and terminal are \a bodyHeight and \a topHeight high.
    int getTotalHeight(int bodyHeight, int topHeight) const;
    /** @} */

    /**
     * Sets the width of the outline in pixels; 4 by default.
     *
     * The corner radius follows at once; body and terminal follow at the next resize. The widget
     * is repainted.
     *
     * Any value is kept. At 0 the outlines of body, terminal and bolt are lines of one pixel of the
     * screen. With a negative width they are not drawn at all; fill, terminal and the inside of the
     * bolt are, and the fill reaches half that width beyond the body.
     */
    void setFrameWidth(int width);

    /**
     * Sets the colour of the charge, blue by default: a gradient from a darker shade of \a color
     * at the bottom left to a lighter one at the top right of the filled part.
     *
     * A present battery is repainted even if the colour is the same as before. An invalid colour
     * is drawn as black.
     */
    void setFillColor(QColor const& color);

public Q_SLOTS:
    /**
     * Sets the charge in percent, 0 by default; values outside 0 to 100 are cut off there.
     *
     * The body of a present battery is repainted unless \a percent is the charge already.
     */
    void setChargePercentage(int percent);

    /// Shows a battery, as by default, or the look of a missing one.
    void setBatteryPresent(bool present);

    /// Shows the bolt on a present battery, or hides it, as by default.
    void setBatteryCharging(bool charging);

protected:
    /// Paints fill, outline and bolt as far as they are damaged.
    void paintEvent(QPaintEvent* event) override;
    /// Lays body, terminal and bolt out.
    void resizeEvent(QResizeEvent* event) override;

    /// Paints the charge or, without a battery, the hatch of the body.
    void paintBatteryFill(QStylePainter& painter);
    /// Paints the outline of the body if \a paintBody is set, and the terminal if \a paintTop is.
    void paintBatteryFrame(QStylePainter& painter, bool paintTop, bool paintBody);
    /// Paints the lightning bolt.
    void paintChargingIcon(QStylePainter& painter);

private:
    class AccessibleBattery; ///< What assistive technology learns.

    int m_frameWidth; // of the outline pen, in pixels
    double m_cornerRadius; // of body and terminal, in pixels
    int m_flags; // present: 1, charging: 2
    double m_charge; // 0.0 to 1.0
    QRect m_batteryRect; // the body; null before the first resize, as the other two
    QRect m_topRect; // the terminal
    QRect m_chargingIconRect; // the box of the bolt
    QBrush m_fillBrush;
};

} // namespace ui
