#include "Animator.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSignalBlocker>

#include <utility>

namespace {

/// Where QAbstractAnimation begins an animation.
int startTime(const QAbstractAnimation& animation)
{
    if (animation.direction() == QAbstractAnimation::Forward) {
        // mutant [0 -> (-1)]: QAbstractAnimation takes a time before the start as the start.
        return 0;
    }
    // mutant [< -> <=; 0 -> 1]: An animation without loops has no time but 0.
    return animation.loopCount() < 0 ? animation.duration() : animation.totalDuration();
}

/**
 * Lets a running \a animator begin again, which start() does not do, and stop() not without ending
 * it for everybody who listens.
 */
void restart(Animator& animator)
{
    // Or Qt's timer would add the time since its last tick. Without an end value there is no motion
    // to be cut short, but a warning for each change of state.
    if (animator.endValue().isValid()) {
        const QSignalBlocker silence(&animator);
        animator.pause();
        if (animator.state() == QAbstractAnimation::Paused) // not if it shall not loop even once
            animator.resume();
    }
    animator.setCurrentTime(startTime(animator));
}

} // namespace

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

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Animator::setup(int duration, QEasingCurve easing)
{
    setDuration(duration);
    setEasingCurve(easing);
}

void Animator::interpolate(const QVariant& start, const QVariant& end)
{
    const QPointer<Animator> self(this); // a slot of valueChanged() may delete the animator
    setStartValue(start);
    if (self)
        setEndValue(end);
    if (!self)
        return;
    if (state() == QAbstractAnimation::Running)
        restart(*this);
    else
        this->start(QAbstractAnimation::KeepWhenStopped);
}

void Animator::setCurrentValue(const QVariant& value)
{
    // Setting either end, and even reading the current value, may update it: nobody is to hear of
    // that, nor of a value in between.
    const QPointer<QObject> listener = std::exchange(target, nullptr);
    QSignalBlocker blocker(this);
    const QVariant former = currentValue();
    setStartValue(value);
    setEndValue(value);
    const QVariant reached = currentValue();
    // mutant [order]: Nothing is emitted between the two.
    blocker.unblock();
    target = listener;

    const QPointer<Animator> self(this);
    if (reached != former)
        Q_EMIT valueChanged(reached);
    if (self) // a slot may have deleted the animator
        updateCurrentValue(reached);
}

void Animator::updateState(QAbstractAnimation::State newState, QAbstractAnimation::State oldState)
{
    if (!target && oldState == QAbstractAnimation::Stopped) {
        qWarning("Animation::updateState: Changing state of an animation without target");
        return;
    }
    // mutant [dropped]: Does nothing in Qt 5.15.
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
