#pragma once

#include "platform_widgets_export.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QAbstractAnimation;
QT_END_NAMESPACE

namespace ui {

/**
 * Makes an animation run back and forth for ever.
 *
 * \image html CAnimationFwdRevLoop.png "A light that runs from bright to dark in 800 ms, and back"
 *
 * \snippet CAnimationFwdRevLoop.cpp CAnimationFwdRevLoop
 *
 * Each time the animation finishes, the loop turns its direction round and starts it again.
 * Everything else is the caller's: values, duration, a finite loop count, the first start, and the
 * end, which is QAbstractAnimation::stop(). Qt counts an animation that is stopped just where it
 * would turn round as finished, and so does the loop.
 *
 * It paints nothing itself and has no hook for style sheets.
 *
 * Its nearest neighbour is QAbstractAnimation::setLoopCount(-1), which always starts over from the
 * same end.
 *
 * An animation that has no end to turn round at (an infinite loop count or an undefined duration)
 * is left alone, so that stop() ends it for good; so is one that lasts no time at all.
 */
class PLATFORM_WIDGETS_EXPORT CAnimationFwdRevLoop : public QObject
{
    Q_OBJECT

public:
    /**
     * Watches \a animation, which may be running already and becomes the loop's parent: the loop is
     * deleted together with it. Null is refused with a warning; such a loop does nothing.
     */
    explicit CAnimationFwdRevLoop(QAbstractAnimation* animation);
    ~CAnimationFwdRevLoop() override;

private Q_SLOTS:
    void reverseAndStart();

private:
    QAbstractAnimation* animation;
};

} // namespace ui
