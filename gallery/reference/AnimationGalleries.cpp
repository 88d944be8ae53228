#include "StateGalleries.h"

#include "Glow.h"
#include "pages/Beacon.h"

#include <ui/CAnimationFwdRevLoop.h>

#include <QCoreApplication>
#include <QPropertyAnimation>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AnimationGalleries)
};

constexpr QSize glowSize(64, 64);
constexpr int pulseDuration = 800;

QWidget* makeGlow(int elapsed)
{
    auto* glow = new Glow;
    glow->setFixedSize(glowSize);
    glow->lightUp();
    auto* animator = glow->findChild<Animator*>();
    animator->pause();
    animator->setCurrentTime(elapsed);
    return glow;
}

QWidget* makePulse(int elapsed)
{
    auto* beacon = new Beacon;
    auto* pulse = new QPropertyAnimation(beacon, "brightness", beacon);
    pulse->setStartValue(1.0);
    pulse->setEndValue(0.0);
    pulse->setDuration(pulseDuration);
    new ui::CAnimationFwdRevLoop(pulse);
    pulse->start();
    pulse->setCurrentTime(qMin(elapsed, pulseDuration)); // at the end the loop turns it round
    if (elapsed > pulseDuration)
        pulse->setCurrentTime(2 * pulseDuration - elapsed);
    pulse->pause();
    return beacon;
}

} // namespace

StateGallery stategalleries::animator()
{
    StateGallery gallery{QStringLiteral("Animator"), 5, {}};
    for (const int elapsed : {0, 25, 50, 100, 200})
        gallery.states.append(
            {Texts::tr("%1 ms").arg(elapsed), [elapsed] { return makeGlow(elapsed); }});
    return gallery;
}

StateGallery stategalleries::loop()
{
    StateGallery gallery{QStringLiteral("CAnimationFwdRevLoop"), 5, {}};
    for (const int elapsed : {0, 250, 500, 900, 1300}) {
        const QString caption =
            elapsed < pulseDuration ? Texts::tr("%1 ms, forwards") : Texts::tr("%1 ms, back");
        gallery.states.append({caption.arg(elapsed), [elapsed] { return makePulse(elapsed); }});
    }
    return gallery;
}
