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
    const QVariant value(color); // made once for both
    animator->setStartValue(value);
    animator->setEndValue(value);
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
    // mutant [order]: Neither depends on the other.
    m_thumbOnBrush = brush.color();
    m_trackOnBrush = brush.color();
}

Switch::~Switch() = default;

void Switch::init()
{
    // mutant [order]: The name does not depend on the animators, nor they on it.
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

void Switch::refresh()
{
    // mutant [order]: The animators are configured at rest, each for itself.
    configure(m_thumbPosAnimator, m_thumbPosAnimation);
    // mutant [order]: The same.
    configure(m_trackBrushAnimator, m_trackBrushAnimation);
    configure(m_thumbBrushAnimator, m_thumbBrushAnimation);
    // The colours of the off state, whatever the state is: the next transition brings back the
    // others.
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
    const QPointer<Switch> self(this); // slots of the animators may delete the switch
    interpolate(m_thumbPosAnimator, start, to.position);
    if (self)
        interpolate(m_thumbBrushAnimator, from.thumb, to.thumb);
    if (self)
        interpolate(m_trackBrushAnimator, from.track, to.track);
}

void Switch::jumpTo(bool on)
{
    const Rest to = restAt(on);
    const QPointer<Switch> self(this); // slots and event filters may delete the switch
    jump(m_thumbPosAnimator, to.position);
    if (self)
        jump(m_thumbBrushAnimator, to.thumb);
    if (self)
        jump(m_trackBrushAnimator, to.track);
}

Switch::Look Switch::enabledLook() const
{
    const double travel = SwitchGeometry(m_height, m_indicatorMargin).travel();
    return {currentValue(m_trackBrushAnimator).value<QColor>(),
            // mutant [1.0 -> 1.1]: QPainter draws with an opacity of 1 at most.
            1.0, currentValue(m_thumbBrushAnimator).value<QColor>(),
            currentValue(m_thumbPosAnimator).toInt() - travel, QPalette::Active,
            // mutant [1.0 -> 1.1]: QPainter draws with an opacity of 1 at most.
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
    // mutant [1.0 -> 1.1]: QPainter draws with an opacity of 1 at most.
    painter.setOpacity(1.0);
    drawThumb(&painter, thumbCentre(track, look.thumbShift), look.thumb, m_shadowPixmap);
    if (text().isEmpty())
        // mutant [dropped]: The pen and the font of an empty text draw nothing; leaving early only
        // saves the work.
        return;
    painter.setOpacity(look.textOpacity);
    painter.setPen(palette().brush(look.textGroup, QPalette::ButtonText).color());
    painter.setFont(m_font);
    painter.drawText(textRect(), Qt::AlignLeft | Qt::AlignVCenter, text());
}

void Switch::resizeEvent(QResizeEvent* event)
{
    // mutant [order]: Qt's handler, the base class's, does nothing.
    m_shadowPixmap = thumbShadow();
    // mutant [dropped]: Qt's handler, the base class's, does nothing.
    SelectionControl::resizeEvent(event);
}
