#include "ClassPictures.h"

#include "Glow.h"
#include "Lamp.h"
#include "pages/DemoParts.h"

#include <Animator.h>
#include <Switch.h>
#include <ui/CAnimationFwdRevLoop.h>

#include <QCoreApplication>
#include <QPropertyAnimation>
#include <QTimer>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ToggleGalleries)
};

constexpr int halfWay = 75; // of the 150 ms that a switch takes by default

Switch* makePlain(bool on, bool enabled)
{
    auto* control = new Switch;
    control->setChecked(on);
    control->setEnabled(enabled);
    return control;
}

auto plain(bool on, bool enabled)
{
    return [on, enabled] { return makePlain(on, enabled); };
}

Switch* makeColoured(bool on)
{
    return makeColouredSwitch(Texts::tr("Wi-Fi"), QColor(33, 150, 243), on);
}

auto coloured(bool on)
{
    return [on] { return makeColoured(on); };
}

QWidget* makeDisabled()
{
    Switch* control = makeColoured(true);
    control->setEnabled(false);
    return control;
}

/// Labels stay black unless the application says otherwise.
QWidget* makeDark()
{
    Switch* control = makeColoured(true);
    QPalette palette = control->palette();
    palette.setColor(QPalette::ButtonText, Qt::white);
    control->setPalette(palette);
    return control;
}

/// Moves once it is visible, and stops half way.
QWidget* makeMoving()
{
    Switch* control = makeColoured(false);
    QTimer::singleShot(0, control, [control] {
        control->setChecked(true);
        const QList<Animator*> animators = control->findChildren<Animator*>();
        for (Animator* animator : animators) {
            animator->pause();
            animator->setCurrentTime(halfWay);
        }
    });
    return control;
}

QWidget* makeLamp(bool on, bool enabled)
{
    auto* lamp = new Lamp;
    lamp->setChecked(on);
    lamp->setEnabled(enabled);
    return lamp;
}

} // namespace

StateGallery stategalleries::switchControl()
{
    return {
        QStringLiteral("Switch"),
        4,
        {
            {Texts::tr("As it comes: off"), plain(false, true)},
            {Texts::tr("On"), plain(true, true)},
            {Texts::tr("Disabled, off"), plain(false, false)},
            {Texts::tr("Disabled, on"), plain(true, false)},
            {Texts::tr("With label and colours: off"), coloured(false)},
            {Texts::tr("Half way"), makeMoving},
            {Texts::tr("On"), coloured(true)},
            {Texts::tr("Disabled"), makeDisabled},
            {Texts::tr("Right to left, off"), coloured(false), ClassState::Light, Qt::RightToLeft},
            {Texts::tr("Right to left, on"), coloured(true), ClassState::Light, Qt::RightToLeft},
            {Texts::tr("Dark, as it comes"), plain(false, true), ClassState::Dark},
            {Texts::tr("Dark, with a light label"), makeDark, ClassState::Dark},
        }};
}

StateGallery stategalleries::selectionControl()
{
    return {QStringLiteral("SelectionControl"),
            4,
            {
                {Texts::tr("Off"), [] { return makeLamp(false, true); }},
                {Texts::tr("On"), [] { return makeLamp(true, true); }},
                {Texts::tr("Disabled, off"), [] { return makeLamp(false, false); }},
                {Texts::tr("Disabled, on"), [] { return makeLamp(true, false); }},
            }};
}

namespace {

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
