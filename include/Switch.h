#pragma once

#include "SelectionControl.h"

#include <QColor>
#include <QEasingCurve>
#include <QFont>
#include <QMargins>
#include <QMetaType>
#include <QPixmap>
#include <QPointer>

class Animator;
QT_BEGIN_NAMESPACE
class QBrush;
QT_END_NAMESPACE

namespace Style {

/**
 * How a value changes over time.
 *
 * The type is known to QVariant, so QObject::property() and QObject::setProperty() carry it. With
 * Qt 5, an application that compares variants of it calls
 * \c QMetaType::registerEqualsComparator<Style::Animation>() once; the library does not, because Qt
 * could not forget the comparator when the library is unloaded. Qt 6 compares them by itself.
 */
struct Animation
{
    /// Shape of the transition, linear by default.
    QEasingCurve::Type easing = QEasingCurve::Linear;
    int duration = 0; ///< Milliseconds, 0 or more; 0, the default, for an immediate change.
};

inline bool operator==(const Animation& a, const Animation& b)
{
    return a.easing == b.easing && a.duration == b.duration;
}

inline bool operator!=(const Animation& a, const Animation& b)
{
    return !(a == b);
}

} // namespace Style

Q_DECLARE_TYPEINFO(Style::Animation, Q_PRIMITIVE_TYPE);
Q_DECLARE_METATYPE(Style::Animation)

/**
 * An on/off switch: a round thumb that slides along a track, with an optional label beside it.
 *
 * \image html Switch.png "A switch in its states"
 *
 * \snippet Switch.cpp Switch
 *
 * Where a style sheet gives the colours, it comes before the state, too:
 *
 * \snippet Switch.cpp style sheet
 *
 * The nearest class of Qt is QCheckBox, which is drawn by the style. The switch draws itself from
 * its properties, so it looks the same under every style, and animates every change of its state.
 *
 * \anchor looks_Switch
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | QPalette::ButtonText | the label, from the group Active or Disabled; black by default |
 * | `#Switch` | every switch that has not been given another object name |
 * | `color` | the label, as QPalette::ButtonText |
 * | `qproperty-...` | the properties below, all but the three animations |
 *
 * \anchor properties_Switch
 * \par Properties
 * | Property | Getter | Setter | Default | In a style sheet |
 * |---|---|---|---|---|
 * | \c height | indicatorHeight() | setHeight() | 36 | `qproperty-height` |
 * | \c font | labelFont() | setFont() | the application's | `qproperty-font` |
 * | \c thumbOnBrush | thumbOnBrush() | setThumbOnBrush() | invalid, drawn as black | `qproperty-thumbOnBrush` |
 * | \c thumbOnOpacity | thumbOnOpacity() | setThumbOnOpacity() | 1 | `qproperty-thumbOnOpacity` |
 * | \c trackOnBrush | trackOnBrush() | setTrackOnBrush() | invalid, drawn as black | `qproperty-trackOnBrush` |
 * | \c trackOnOpacity | trackOnOpacity() | setTrackOnOpacity() | 0.5 | `qproperty-trackOnOpacity` |
 * | \c thumbOffBrush | thumbOffBrush() | setThumbOffBrush() | invalid, drawn as black | `qproperty-thumbOffBrush` |
 * | \c thumbOffOpacity | thumbOffOpacity() | setThumbOffOpacity() | 1 | `qproperty-thumbOffOpacity` |
 * | \c trackOffBrush | trackOffBrush() | setTrackOffBrush() | invalid, drawn as black | `qproperty-trackOffBrush` |
 * | \c trackOffOpacity | trackOffOpacity() | setTrackOffOpacity() | 0.25 | `qproperty-trackOffOpacity` |
 * | \c thumbDisabled | thumbDisabled() | setThumbDisabled() | invalid, drawn as black | `qproperty-thumbDisabled` |
 * | \c thumbDisabledOpacity | thumbDisabledOpacity() | setThumbDisabledOpacity() | 1 | `qproperty-thumbDisabledOpacity` |
 * | \c trackDisabled | trackDisabled() | setTrackDisabled() | invalid, drawn as black | `qproperty-trackDisabled` |
 * | \c trackDisabledOpacity | trackDisabledOpacity() | setTrackDisabledOpacity() | 0.15 | `qproperty-trackDisabledOpacity` |
 * | \c textColor | textColor() | setTextColor() | invalid | `qproperty-textColor` |
 * | \c disabledTextOpacity | disabledTextOpacity() | setDisabledTextOpacity() | 0.4 | `qproperty-disabledTextOpacity` |
 * | \c thumbBrushAnimation | thumbBrushAnimation() | setThumbBrushAnimation() | linear, 150 ms | none |
 * | \c trackBrushAnimation | trackBrushAnimation() | setTrackBrushAnimation() | linear, 150 ms | none |
 * | \c thumbPosAnimation | thumbPosAnimation() | setThumbPosAnimation() | in-out quadratic, 150 ms | none |
 *
 * \par Looks
 * Colours are those of the properties, and of the palette for the label alone. An application with
 * a dark palette sets the label's with setPalette(). A switch that nobody configured draws black in
 * different opacities: dark thumb, lighter track, the track lighter still when off. Track and thumb
 * have fixed radii; at the default height and margins the track is a pill of 36 x 16 pixels, and
 * the thumb and its shadow just fit.
 *
 * \par Opacities
 * Fractions 0...1. Where an opacity makes up the alpha of a colour (all but those of the disabled
 * look), a value outside the range, not a number included, draws nothing. The disabled look limits
 * its opacities to the range.
 *
 * \par Setters
 * A setter that changes its property repaints the switch and asks for no new layout: call
 * updateGeometry() after setHeight() or setIndicatorMargin() in a layout. It also puts the colours
 * at rest back to those of the off state, until the state is set the next time; so set the colours
 * before the state, or call toggle(checkState()) after them, which emits no signal.
 *
 * \par Motion
 * Every setting of the state starts a transition, also to the state that the switch already has.
 * Switching on moves the thumb from the off end, switching off from where it is. A switch that is
 * not visible changes at once. A disabled one shows its state without motion. In a right-to-left
 * layout the switch is at the right edge, but its on end stays on the right.
 */
class PLATFORM_WIDGETS_EXPORT Switch : public SelectionControl
{
    Q_OBJECT
    Q_PROPERTY(int height READ indicatorHeight WRITE setHeight)
    Q_PROPERTY(QFont font READ labelFont WRITE setFont)
    Q_PROPERTY(QColor thumbOnBrush READ thumbOnBrush WRITE setThumbOnBrush)
    Q_PROPERTY(double thumbOnOpacity READ thumbOnOpacity WRITE setThumbOnOpacity)
    Q_PROPERTY(QColor trackOnBrush READ trackOnBrush WRITE setTrackOnBrush)
    Q_PROPERTY(double trackOnOpacity READ trackOnOpacity WRITE setTrackOnOpacity)
    Q_PROPERTY(QColor thumbOffBrush READ thumbOffBrush WRITE setThumbOffBrush)
    Q_PROPERTY(double thumbOffOpacity READ thumbOffOpacity WRITE setThumbOffOpacity)
    Q_PROPERTY(QColor trackOffBrush READ trackOffBrush WRITE setTrackOffBrush)
    Q_PROPERTY(double trackOffOpacity READ trackOffOpacity WRITE setTrackOffOpacity)
    Q_PROPERTY(QColor thumbDisabled READ thumbDisabled WRITE setThumbDisabled)
    Q_PROPERTY(double thumbDisabledOpacity READ thumbDisabledOpacity WRITE setThumbDisabledOpacity)
    Q_PROPERTY(QColor trackDisabled READ trackDisabled WRITE setTrackDisabled)
    Q_PROPERTY(double trackDisabledOpacity READ trackDisabledOpacity WRITE setTrackDisabledOpacity)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(double disabledTextOpacity READ disabledTextOpacity WRITE setDisabledTextOpacity)
    Q_PROPERTY(
        Style::Animation thumbBrushAnimation READ thumbBrushAnimation WRITE setThumbBrushAnimation)
    Q_PROPERTY(
        Style::Animation trackBrushAnimation READ trackBrushAnimation WRITE setTrackBrushAnimation)
    Q_PROPERTY(Style::Animation thumbPosAnimation READ thumbPosAnimation WRITE setThumbPosAnimation)

public:
    /// Makes a switch without label, with the object name "Switch".
    explicit Switch(QWidget* parent = nullptr);

    /// Makes a switch with the label \a text.
    explicit Switch(const QString& text, QWidget* parent = nullptr);

    /// Makes a switch with the label \a text whose track and thumb have the colour of \a brush when
    /// on.
    Switch(const QString& text, const QBrush& brush, QWidget* parent = nullptr);

    ~Switch() override;

    /// The indicator and the label in the widget's font, side by side; indicatorHeight() pixels
    /// tall.
    QSize sizeHint() const override;

    /// The area of track and thumb with the margins: at the leading edge, indicatorHeight() pixels
    /// tall.
    QRect indicatorRect() const;

    /// The area of the label: what indicatorRect() leaves of the width, in the full height.
    QRect textRect() const;

    /**
     * Height of the indicator in pixels, and the width of its track. Default 36.
     * Any value is kept; geometry is computed with at most QWIDGETSIZE_MAX either way. This is the
     * property \c height; height() is the widget's own.
     */
    int indicatorHeight() const;
    /// Sets indicatorHeight().
    void setHeight(int height);

    /**
     * Font of the label. Default: the application's default font at construction.
     * This is the property \c font; font() is the widget's own, which sizeHint() measures with and
     * which QWidget::setFont() sets.
     */
    QFont labelFont() const;
    /// Sets labelFont().
    void setFont(QFont font);

    /// Colour of the thumb when on, at thumbOnOpacity(); its own alpha is ignored. Default:
    /// invalid, drawn as black.
    QColor thumbOnBrush() const;
    /// Sets thumbOnBrush().
    void setThumbOnBrush(QColor color);

    /// Opacity of the thumb when on, from 0 to 1. Default 1.0.
    double thumbOnOpacity() const;
    /// Sets thumbOnOpacity().
    void setThumbOnOpacity(double opacity);

    /// Colour of the track when on, at trackOnOpacity(); its own alpha is ignored. Default:
    /// invalid, drawn as black.
    QColor trackOnBrush() const;
    /// Sets trackOnBrush().
    void setTrackOnBrush(QColor color);

    /// Opacity of the track when on, from 0 to 1. Default 0.5.
    double trackOnOpacity() const;
    /// Sets trackOnOpacity().
    void setTrackOnOpacity(double opacity);

    /// Colour of the thumb when off, at thumbOffOpacity(); its own alpha is ignored. Default:
    /// invalid, drawn as black.
    QColor thumbOffBrush() const;
    /// Sets thumbOffBrush().
    void setThumbOffBrush(QColor color);

    /// Opacity of the thumb when off, from 0 to 1. Default 1.0.
    double thumbOffOpacity() const;
    /// Sets thumbOffOpacity().
    void setThumbOffOpacity(double opacity);

    /// Colour of the track when off, at trackOffOpacity(); its own alpha is ignored. Default:
    /// invalid, drawn as black.
    QColor trackOffBrush() const;
    /// Sets trackOffBrush().
    void setTrackOffBrush(QColor color);

    /// Opacity of the track when off, from 0 to 1. Default 0.25.
    double trackOffOpacity() const;
    /// Sets trackOffOpacity().
    void setTrackOffOpacity(double opacity);

    /// Colour of the thumb when disabled, with its own alpha. Default: invalid, drawn as opaque
    /// black.
    QColor thumbDisabled() const;
    /// Sets thumbDisabled().
    void setThumbDisabled(QColor color);

    /// Kept for the application, any value; the disabled thumb is drawn at full opacity. Default
    /// 1.0.
    double thumbDisabledOpacity() const;
    /// Sets thumbDisabledOpacity().
    void setThumbDisabledOpacity(double opacity);

    /// Colour of the track when disabled, with its own alpha. Default: invalid, drawn as opaque
    /// black.
    QColor trackDisabled() const;
    /// Sets trackDisabled().
    void setTrackDisabled(QColor color);

    /// Opacity of the track when disabled, from 0 to 1, on top of the colour's own alpha. Default
    /// 0.15.
    double trackDisabledOpacity() const;
    /// Sets trackDisabledOpacity().
    void setTrackDisabledOpacity(double opacity);

    /// Kept for the application; the label has the colour of QPalette::ButtonText. Default:
    /// invalid.
    QColor textColor() const;
    /// Sets textColor().
    void setTextColor(QColor color);

    /// Opacity of the label when disabled, from 0 to 1. Default 0.4.
    double disabledTextOpacity() const;
    /// Sets disabledTextOpacity().
    void setDisabledTextOpacity(double opacity);

    /// How the colour of the thumb changes. Default: linear, 150 ms.
    Style::Animation thumbBrushAnimation() const;
    /// Sets thumbBrushAnimation().
    void setThumbBrushAnimation(Style::Animation animation);

    /// How the colour of the track changes. Default: linear, 150 ms.
    Style::Animation trackBrushAnimation() const;
    /// Sets trackBrushAnimation().
    void setTrackBrushAnimation(Style::Animation animation);

    /// How the thumb moves. Default: QEasingCurve::InOutQuad, 150 ms.
    Style::Animation thumbPosAnimation() const;
    /// Sets thumbPosAnimation().
    void setThumbPosAnimation(Style::Animation animation);

    /**
     * Sets the space around the track in pixels. Default 8 on every side.
     * The sum of the left and right margins also sets how far the thumb travels. Any value is kept;
     * geometry is computed with at most QWIDGETSIZE_MAX either way.
     */
    void setIndicatorMargin(QMargins margin);

    /// Hands the animation properties and the colours of the off state to the animators and
    /// repaints.
    void refresh();

    /// The slot toggle() inverts the state.
    using SelectionControl::toggle;

    /// Starts the transition to \a state, or makes it at once if the switch is not visible.
    void toggle(Qt::CheckState state) override;

protected:
    /// Paints track, shadow, thumb and label, in this order.
    void paintEvent(QPaintEvent* event) override;
    /// Takes the image of the thumb's shadow anew, which is the same at every size.
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Rest; ///< What the animators show when a transition is over.
    struct Look; ///< What the painting routine needs to know of the state.

    void init();
    template <typename T>
    PLATFORM_WIDGETS_NO_EXPORT void assign(T& field, const T& value);
    PLATFORM_WIDGETS_NO_EXPORT Rest restAt(bool on) const;
    PLATFORM_WIDGETS_NO_EXPORT void animateTo(bool on);
    PLATFORM_WIDGETS_NO_EXPORT void jumpTo(bool on);
    PLATFORM_WIDGETS_NO_EXPORT Look enabledLook() const;
    PLATFORM_WIDGETS_NO_EXPORT Look disabledLook() const;

    int m_height = 36; // makes the track as tall as its two corner radii
    QFont m_font;
    QMargins m_indicatorMargin{8, 8, 8, 8};
    QColor m_thumbOnBrush;
    double m_thumbOnOpacity = 1.0;
    QColor m_trackOnBrush;
    double m_trackOnOpacity = 0.5;
    QColor m_thumbOffBrush;
    double m_thumbOffOpacity = 1.0;
    QColor m_trackOffBrush;
    double m_trackOffOpacity = 0.25;
    QColor m_thumbDisabled;
    double m_thumbDisabledOpacity = 1.0;
    QColor m_trackDisabled;
    double m_trackDisabledOpacity = 0.15;
    QColor m_textColor;
    double m_disabledTextOpacity = 0.4;
    Style::Animation m_thumbBrushAnimation{QEasingCurve::Linear, 150};
    Style::Animation m_trackBrushAnimation{QEasingCurve::Linear, 150};
    Style::Animation m_thumbPosAnimation{QEasingCurve::InOutQuad, 150};
    QPixmap m_shadowPixmap;
    QPointer<Animator> m_thumbBrushAnimator;
    QPointer<Animator> m_trackBrushAnimator;
    QPointer<Animator> m_thumbPosAnimator;
};
