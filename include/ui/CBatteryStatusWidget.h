#pragma once

#include "platform_widgets_export.h"

#include <QBrush>
#include <QRect>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QStylePainter;
QT_END_NAMESPACE

namespace ui {

class AccessibleBattery;

/**
 * A battery symbol in golden-ratio proportions.
 *
 * \code
 * auto* battery = new ui::CBatteryStatusWidget(this);
 * battery->setChargePercentage(57);
 * battery->setBatteryCharging(true);
 * \endcode
 *
 * An upright rounded body with a small terminal on top. The fill rises from the bottom with the
 * charge; a lightning bolt shows that the battery charges; without a battery the symbol is hatched
 * and its outline dashed.
 *
 * Its nearest neighbour is QProgressBar, which is a control with a text, a range and a style's own
 * look. This symbol keeps its proportions instead: layouts ask heightForWidth(), and in a rectangle
 * of another shape it is centred at the largest size that fits. It has no size hint.
 *
 * | Palette role     | Paints                                                          |
 * |------------------|-----------------------------------------------------------------|
 * | foregroundRole() | outline and terminal, and the hatch where there is no battery    |
 *
 * The roles are read from the current colour group. A change repaints no more than it must: the body
 * alone for charge and fill colour, nothing at all for a charge that is not shown.
 *
 * To assistive technology it is a progress bar from 0 to 100, described as charging or absent.
 */
class PLATFORM_WIDGETS_EXPORT CBatteryStatusWidget : public QWidget
{
    Q_OBJECT

public:
    /// The ratio of all proportions.
    static const double GOLDEN_RATIO;

    /// A present, empty battery that does not charge, owned by \a parent.
    explicit CBatteryStatusWidget(QWidget* parent = nullptr);
    ~CBatteryStatusWidget() override;

    /// The height, in pixels, of a symbol that is \a w pixels wide with the contents margins.
    int heightForWidth(int w) const override;

    /**
     * Sets the width of the outline in pixels, 4 by default, and with it the corners' radius.
     * The symbol is laid out for the new width at the next resize, not before. Widths of 0 and less
     * are taken as they are: 0 gives a line of one pixel, less than 0 nothing useful.
     */
    void setFrameWidth(int width);

    /**
     * Sets the colour of the charge fill, blue by default: a gradient from a darker shade at the
     * bottom left to a lighter one at the top right. An invalid colour gives black.
     */
    void setFillColor(QColor const& color);

    /// \name Geometry
    /// In pixels; \a w is an outer width. Results are kept within ±2^29.
    /// \{
    int getBatteryRectWidth(int w) const; ///< Width of the body's outline.
    int getBatteryRectHeight(int w) const; ///< Height of a body of width \a w.
    int getTopRectWidth(int w) const; ///< Width of the terminal on a body of width \a w.
    int getTopRectHeight(int w) const; ///< Height of a terminal of width \a w.
    int getTotalHeight(int bodyHeight, int topHeight) const; ///< Height of the whole symbol.
    int widthForHeight(int h) const; ///< Outer width of a symbol of height \a h.
    /// \}

public Q_SLOTS:
    /// Sets the charge in percent, 0 by default; clamped to 0…100.
    void setChargePercentage(int percent);
    /// Says whether there is a battery, true by default. The charge is kept while there is none.
    void setBatteryPresent(bool present);
    /// Says whether the battery charges, false by default; seen only while it is present.
    void setBatteryCharging(bool charging);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Draws the charge fill, or the hatch where there is no battery.
    void paintBatteryFill(QStylePainter& painter);
    /// Draws the outline of the body and the terminal, as asked for.
    void paintBatteryFrame(QStylePainter& painter, bool paintTop, bool paintBody);
    /// Draws the lightning bolt.
    void paintChargingIcon(QStylePainter& painter);

private:
    friend class AccessibleBattery;

    int m_frameWidth;
    double m_cornerRadius;
    int m_flags;
    double m_charge;
    QRect m_batteryRect;
    QRect m_topRect;
    QRect m_chargingIconRect;
    QBrush m_fillBrush;
};

} // namespace ui
