#include "ReferenceAnimator.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSignalBlocker>

namespace test {

ReferenceAnimator::ReferenceAnimator(QObject* target, QObject* parent)
    : QVariantAnimation(parent)
{
    setTargetObject(target);
}

ReferenceAnimator::~ReferenceAnimator()
{
    stop();
}

void ReferenceAnimator::setTargetObject(QObject* target)
{
    if (target == m_target)
        return;
    if (state() == Running) {
        qWarning("Animation::setTargetObject: you can't change the target of a running animation");
        return;
    }
    m_target = target;
}

void ReferenceAnimator::setup(int duration, const QEasingCurve& easing)
{
    setDuration(duration);
    setEasingCurve(easing);
}

void ReferenceAnimator::interpolate(const QVariant& start, const QVariant& end)
{
    setStartValue(start);
    setEndValue(end);
    const bool running = state() == Running;
    this->start(KeepWhenStopped);
    if (running)
        setCurrentTime(0);
}

void ReferenceAnimator::setCurrentValue(const QVariant& value)
{
    QSignalBlocker blocker(this);
    m_silent = true;
    const QVariant before = currentValue();
    setStartValue(value);
    setEndValue(value);
    const QVariant reached = currentValue();
    m_silent = false;
    blocker.unblock();
    if (reached != before)
        Q_EMIT valueChanged(reached);
    updateCurrentValue(reached);
}

void ReferenceAnimator::updateCurrentValue(const QVariant&)
{
    if (!m_target || m_silent)
        return;
    QEvent event(QEvent::StyleAnimationUpdate);
    event.setAccepted(false);
    QCoreApplication::sendEvent(m_target, &event);
}

void ReferenceAnimator::updateState(State newState, State oldState)
{
    if (!m_target && oldState == Stopped) {
        qWarning("Animation::updateState: Changing state of an animation without target");
        return;
    }
    QVariantAnimation::updateState(newState, oldState);
    if (!endValue().isValid() && direction() == Forward)
        qWarning("Animation::updateState (%s): starting an animation without end value",
                 m_target ? m_target->metaObject()->className() : "no target");
}

} // namespace test
