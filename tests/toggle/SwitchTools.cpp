#include "SwitchTools.h"

#include "Animator.h"
#include "Switch.h"

namespace test {

void Animators::holdAt(int msec) const
{
    for (Animator* animator : {thumbBrush, trackBrush, thumbPos}) {
        animator->pause();
        animator->setCurrentTime(msec);
    }
}

void Animators::runFrom(int msec) const
{
    holdAt(msec);
    for (Animator* animator : {thumbBrush, trackBrush, thumbPos})
        animator->resume();
}

Animators animatorsOf(const Switch& control)
{
    const QList<Animator*> all = control.findChildren<Animator*>();
    Q_ASSERT(all.size() == 3);
    return {all.at(0), all.at(1), all.at(2)};
}

} // namespace test
