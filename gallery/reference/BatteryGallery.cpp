#include "StateGalleries.h"

#include <ui/CBatteryStatusWidget.h>

#include <QCoreApplication>

using ui::CBatteryStatusWidget;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(BatteryGallery)
};

constexpr QSize size(56, 98);
constexpr int usualPercent = 60;

CBatteryStatusWidget* makeBattery(int percent)
{
    auto* battery = new CBatteryStatusWidget;
    battery->setFixedSize(size);
    battery->setChargePercentage(percent);
    return battery;
}

/// Makes a battery at the usual charge, once \a prepare has been called for it.
auto state(const std::function<void(CBatteryStatusWidget*)>& prepare)
{
    return [prepare] {
        CBatteryStatusWidget* battery = makeBattery(usualPercent);
        prepare(battery);
        return battery;
    };
}

void charge(CBatteryStatusWidget* battery)
{
    battery->setBatteryCharging(true);
}

void takeOut(CBatteryStatusWidget* battery)
{
    battery->setBatteryPresent(false);
}

} // namespace

StateGallery stategalleries::battery()
{
    StateGallery gallery{QStringLiteral("CBatteryStatusWidget"), 5, {}};
    for (const int percent : {0, 20, 50, 80, 100})
        gallery.states.append(
            {Texts::tr("%1 %").arg(percent), [percent] { return makeBattery(percent); }});
    gallery.states += QVector<ClassState>{
        {Texts::tr("Charging"), state(charge)},
        {Texts::tr("Absent"), state(takeOut)},
        {Texts::tr("Disabled"), state([](QWidget* widget) { widget->setEnabled(false); })},
        {Texts::tr("Another fill colour"),
         state([](CBatteryStatusWidget* widget) { widget->setFillColor(QColor(0, 140, 60)); })},
        {Texts::tr("Frame width 2"),
         state([](CBatteryStatusWidget* widget) { widget->setFrameWidth(2); })},
        {Texts::tr("Dark palette"), [] { return makeBattery(usualPercent); }, ClassState::Dark},
        {Texts::tr("Dark, charging"), state(charge), ClassState::Dark},
        {Texts::tr("Dark, absent"), state(takeOut), ClassState::Dark},
    };
    return gallery;
}
