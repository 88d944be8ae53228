#include "Switch.h"

#include "Animator.h"
#include "SwitchDrawing.h"
#include "SwitchGeometry.h"

#include <QBrush>
#include <QPainter>

using namespace SwitchDrawing;

namespace {

// An application may have deleted an animator: the switch then goes without.

void configure(Animator* animator, const Style::Animation& animation)
{
    if (animator)
        animator->setup(animation.duration, QEasingCurve(animation.easing));
}

void rest(Animator* animator, const QColor& color)
{
    if (!animator)
        return;
    animator->setStartValue(color);
    animator->setEndValue(color);
}

void interpolate(Animator* animator, const QVariant& start, const QVariant& end)
{
    if (animator)
        animator->interpolate(start, end);
}

void jump(Animator* animator, const QVariant& value)
{
    if (animator)
        animator->setCurrentValue(value);
}

QVariant currentValue(const Animator* animator)
{
    return animator ? animator->currentValue() : QVariant();
}

} // namespace

struct Switch::Rest
{
    int position;
    QColor thumb;
    QColor track;
};

struct Switch::Look
{
    QColor track;
    double trackOpacity;
    QColor thumb;
    double thumbShift; ///< Of the left edge of the thumb's room, which else is the track.
    QPalette::ColorGroup textGroup;
    double textOpacity;
};

Switch::Switch(QWidget* parent)
    : SelectionControl(parent)
{
    init();
}

Switch::Switch(const QString& text, QWidget* parent)
    : Switch(parent)
{
    setText(text);
}

Switch::Switch(const QString& text, const QBrush& brush, QWidget* parent)
    : Switch(text, parent)
{
    m_thumbOnBrush = brush.color();
    m_trackOnBrush = brush.color();
}

Switch::~Switch() = default;

void Switch::init()
{
    setObjectName(QStringLiteral("Switch"));
    m_thumbBrushAnimator = new Animator(this, this);
    m_trackBrushAnimator = new Animator(this, this);
    m_thumbPosAnimator = new Animator(this, this);
    refresh();

    QPalette labelPalette = palette();
    const QBrush label(m_textColor, Qt::SolidPattern);
    labelPalette.setBrush(QPalette::Active, QPalette::ButtonText, label);
    labelPalette.setBrush(QPalette::Disabled, QPalette::ButtonText, label);
    setPalette(labelPalette);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize Switch::sizeHint() const
{
    const QSize indicator = SwitchGeometry(m_height, m_indicatorMargin).indicatorSize();
    const int textWidth = QFontMetrics(font()).horizontalAdvance(text());
    return {indicator.width() + textWidth, indicator.height()};
}

QRect Switch::indicatorRect() const
{
    return SwitchGeometry(m_height, m_indicatorMargin).indicatorRect(width(), layoutDirection());
}

QRect Switch::textRect() const
{
    return SwitchGeometry(m_height, m_indicatorMargin).textRect(size(), layoutDirection());
}

template <typename T>
void Switch::assign(T& field, const T& value)
{
    if (field == value)
        return;
    field = value;
    refresh();
}

// The setters take their values as the properties do. NOLINTBEGIN(performance-unnecessary-value-param)

int Switch::indicatorHeight() const
{
    return m_height;
}

void Switch::setHeight(int height)
{
    assign(m_height, height);
}

QFont Switch::labelFont() const
{
    return m_font;
}

void Switch::setFont(QFont font)
{
    assign(m_font, font);
}

QColor Switch::thumbOnBrush() const
{
    return m_thumbOnBrush;
}

void Switch::setThumbOnBrush(QColor color)
{
    assign(m_thumbOnBrush, color);
}

double Switch::thumbOnOpacity() const
{
    return m_thumbOnOpacity;
}

void Switch::setThumbOnOpacity(double opacity)
{
    assign(m_thumbOnOpacity, opacity);
}

QColor Switch::trackOnBrush() const
{
    return m_trackOnBrush;
}

void Switch::setTrackOnBrush(QColor color)
{
    assign(m_trackOnBrush, color);
}

double Switch::trackOnOpacity() const
{
    return m_trackOnOpacity;
}

void Switch::setTrackOnOpacity(double opacity)
{
    assign(m_trackOnOpacity, opacity);
}

QColor Switch::thumbOffBrush() const
{
    return m_thumbOffBrush;
}

void Switch::setThumbOffBrush(QColor color)
{
    assign(m_thumbOffBrush, color);
}

double Switch::thumbOffOpacity() const
{
    return m_thumbOffOpacity;
}

void Switch::setThumbOffOpacity(double opacity)
{
    assign(m_thumbOffOpacity, opacity);
}

QColor Switch::trackOffBrush() const
{
    return m_trackOffBrush;
}

void Switch::setTrackOffBrush(QColor color)
{
    assign(m_trackOffBrush, color);
}

double Switch::trackOffOpacity() const
{
    return m_trackOffOpacity;
}

void Switch::setTrackOffOpacity(double opacity)
{
    assign(m_trackOffOpacity, opacity);
}

QColor Switch::thumbDisabled() const
{
    return m_thumbDisabled;
}

void Switch::setThumbDisabled(QColor color)
{
    assign(m_thumbDisabled, color);
}

double Switch::thumbDisabledOpacity() const
{
    return m_thumbDisabledOpacity;
}

void Switch::setThumbDisabledOpacity(double opacity)
{
    assign(m_thumbDisabledOpacity, opacity);
}

QColor Switch::trackDisabled() const
{
    return m_trackDisabled;
}

void Switch::setTrackDisabled(QColor color)
{
    assign(m_trackDisabled, color);
}

double Switch::trackDisabledOpacity() const
{
    return m_trackDisabledOpacity;
}

void Switch::setTrackDisabledOpacity(double opacity)
{
    assign(m_trackDisabledOpacity, opacity);
}

QColor Switch::textColor() const
{
    return m_textColor;
}

void Switch::setTextColor(QColor color)
{
    assign(m_textColor, color);
}

double Switch::disabledTextOpacity() const
{
    return m_disabledTextOpacity;
}

void Switch::setDisabledTextOpacity(double opacity)
{
    assign(m_disabledTextOpacity, opacity);
}

Style::Animation Switch::thumbBrushAnimation() const
{
    return m_thumbBrushAnimation;
}

void Switch::setThumbBrushAnimation(Style::Animation animation)
{
    assign(m_thumbBrushAnimation, animation);
}

Style::Animation Switch::trackBrushAnimation() const
{
    return m_trackBrushAnimation;
}

void Switch::setTrackBrushAnimation(Style::Animation animation)
{
    assign(m_trackBrushAnimation, animation);
}

Style::Animation Switch::thumbPosAnimation() const
{
    return m_thumbPosAnimation;
}

void Switch::setThumbPosAnimation(Style::Animation animation)
{
    assign(m_thumbPosAnimation, animation);
}

void Switch::setIndicatorMargin(QMargins margin)
{
    assign(m_indicatorMargin, margin);
}

// NOLINTEND(performance-unnecessary-value-param)

void Switch::refresh()
{
    configure(m_thumbPosAnimator, m_thumbPosAnimation);
    configure(m_trackBrushAnimator, m_trackBrushAnimation);
    configure(m_thumbBrushAnimator, m_thumbBrushAnimation);
    // The colours of the off state whatever the state is; the next transition brings the others back.
    const Rest off = restAt(false);
    rest(m_trackBrushAnimator, off.track);
    rest(m_thumbBrushAnimator, off.thumb);
    update();
}

void Switch::toggle(Qt::CheckState state)
{
    const bool on = state == Qt::Checked;
    if (isVisible())
        animateTo(on);
    else
        jumpTo(on);
}

Switch::Rest Switch::restAt(bool on) const
{
    if (on) {
        return {SwitchGeometry(m_height, m_indicatorMargin).onPosition(),
                withOpacity(m_thumbOnBrush, m_thumbOnOpacity),
                withOpacity(m_trackOnBrush, m_trackOnOpacity)};
    }
    return {0, withOpacity(m_thumbOffBrush, m_thumbOffOpacity),
            withOpacity(m_trackOffBrush, m_trackOffOpacity)};
}

void Switch::animateTo(bool on)
{
    const Rest from = restAt(!on);
    const Rest to = restAt(on);
    // Off starts where the thumb is; everything else starts from the opposite end.
    const int start = on ? from.position : currentValue(m_thumbPosAnimator).toInt();
    interpolate(m_thumbPosAnimator, start, to.position);
    interpolate(m_thumbBrushAnimator, from.thumb, to.thumb);
    interpolate(m_trackBrushAnimator, from.track, to.track);
}

void Switch::jumpTo(bool on)
{
    const Rest to = restAt(on);
    jump(m_thumbPosAnimator, to.position);
    jump(m_thumbBrushAnimator, to.thumb);
    jump(m_trackBrushAnimator, to.track);
}

Switch::Look Switch::enabledLook() const
{
    const double travel = SwitchGeometry(m_height, m_indicatorMargin).travel();
    return {currentValue(m_trackBrushAnimator).value<QColor>(),
            1.0,
            currentValue(m_thumbBrushAnimator).value<QColor>(),
            currentValue(m_thumbPosAnimator).toInt() - travel,
            QPalette::Active,
            1.0};
}

Switch::Look Switch::disabledLook() const
{
    const int travel = SwitchGeometry(m_height, m_indicatorMargin).travel();
    return {m_trackDisabled,    m_trackDisabledOpacity,
            m_thumbDisabled,    double(isChecked() ? travel : -travel),
            QPalette::Disabled, m_disabledTextOpacity};
}

void Switch::paintEvent(QPaintEvent*)
{
    const Look look = isEnabled() ? enabledLook() : disabledLook();
    const QRectF track = SwitchGeometry(m_height, m_indicatorMargin).trackRect(indicatorRect());

    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setOpacity(look.trackOpacity);
    drawTrack(&painter, track, look.track);
    painter.setOpacity(1.0);
    drawThumb(&painter, thumbCentre(track, look.thumbShift), look.thumb, m_shadowPixmap);
    if (text().isEmpty())
        return;
    painter.setOpacity(look.textOpacity);
    painter.setPen(palette().brush(look.textGroup, QPalette::ButtonText).color());
    painter.setFont(m_font);
    painter.drawText(textRect(), Qt::AlignLeft | Qt::AlignVCenter, text());
}

void Switch::resizeEvent(QResizeEvent* event)
{
    m_shadowPixmap = thumbShadow();
    SelectionControl::resizeEvent(event);
}
