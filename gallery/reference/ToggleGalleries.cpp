#include "StateGalleries.h"

#include "ColouredSwitch.h"
#include "Lamp.h"

#include <Animator.h>
#include <Switch.h>

#include <QCoreApplication>
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
