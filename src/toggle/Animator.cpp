#include "Animator.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

Animator::Animator(QObject* object, QObject* parent)
    : QVariantAnimation(parent)
{
    setTargetObject(object);
}

Animator::~Animator()
{
    stop();
}

QObject* Animator::targetObject() const
{
    return target;
}

void Animator::setTargetObject(QObject* object)
{
    if (target == object)
        return;
    if (state() == QAbstractAnimation::Running) {
        qWarning("Animation::setTargetObject: you can't change the target of a running animation");
        return;
    }
    target = object;
}

// By value as QAbstractAnimation's own slots take their curves. NOLINTNEXTLINE(performance-unnecessary-value-param)
void Animator::setup(int duration, QEasingCurve easing)
{
    setDuration(duration);
    setEasingCurve(easing);
}

void Animator::interpolate(const QVariant& start, const QVariant& end)
{
    // start() does nothing while the animation runs and goes on from where it was paused.
    stop();
    setStartValue(start);
    setEndValue(end);
    this->start(QAbstractAnimation::KeepWhenStopped);
}

void Animator::setCurrentValue(const QVariant& value)
{
    // Each of these may update the current value; the target is taken away meanwhile to hear of it once.
    const QPointer<QObject> listener = std::exchange(target, nullptr);
    setStartValue(value);
    setEndValue(value);
    const QVariant reached = currentValue();
    target = listener;
    updateCurrentValue(reached);
}

void Animator::updateState(QAbstractAnimation::State newState, QAbstractAnimation::State oldState)
{
    if (!target && oldState == QAbstractAnimation::Stopped) {
        qWarning("Animation::updateState: Changing state of an animation without target");
        return;
    }
    QVariantAnimation::updateState(newState, oldState);
    if (!endValue().isValid() && direction() == QAbstractAnimation::Forward) {
        qWarning("Animation::updateState (%s): starting an animation without end value",
                 target ? target->metaObject()->className() : "no target");
    }
}

void Animator::updateCurrentValue(const QVariant&)
{
    if (!target)
        return;
    QEvent event(QEvent::StyleAnimationUpdate);
    event.setAccepted(false);
    QCoreApplication::sendEvent(target, &event);
}
