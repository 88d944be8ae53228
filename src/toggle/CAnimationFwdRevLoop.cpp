#include "ui/CAnimationFwdRevLoop.h"

#include <QAbstractAnimation>
#include <QPointer>

namespace ui {

namespace {

QAbstractAnimation::Direction opposite(QAbstractAnimation::Direction direction)
{
    return direction == QAbstractAnimation::Forward ? QAbstractAnimation::Backward
                                                    : QAbstractAnimation::Forward;
}

/**
 * Whether the animation comes to an end by itself, after some time.
 * One without an end emits finished() only where it is stopped, which must stay its end; one
 * without a duration would finish again within start(), for ever.
 */
bool hasEnd(const QAbstractAnimation& animation)
{
    return animation.totalDuration() > 0;
}

} // namespace

CAnimationFwdRevLoop::CAnimationFwdRevLoop(QAbstractAnimation* theAnimation)
    : QObject(theAnimation)
    , animation(theAnimation)
{
    if (animation)
        connect(animation, SIGNAL(finished()), SLOT(reverseAndStart()));
    else
        qWarning("CAnimationFwdRevLoop: there is no animation to drive");
}

CAnimationFwdRevLoop::~CAnimationFwdRevLoop() = default;

void CAnimationFwdRevLoop::reverseAndStart()
{
    if (!animation || !hasEnd(*animation))
        return;
    // A slot of directionChanged() may delete the animation, and with it this loop.
    const QPointer<QAbstractAnimation> running = animation;
    running->setDirection(opposite(running->direction()));
    if (running)
        running->start(QAbstractAnimation::KeepWhenStopped);
}

} // namespace ui
