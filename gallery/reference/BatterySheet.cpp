#include "BatterySheet.h"

#include <ui/CBatteryStatusWidget.h>

using ui::CBatteryStatusWidget;

namespace {

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
auto battery(const std::function<void(CBatteryStatusWidget*)>& prepare)
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

ClassSheet BatterySheet::sheet()
{
    ClassSheet sheet{QStringLiteral("CBatteryStatusWidget"), 5, {}};
    for (const int percent : {0, 20, 50, 80, 100})
        sheet.states.append({tr("%1 %").arg(percent), [percent] { return makeBattery(percent); }});
    sheet.states += QVector<ClassState>{
        {tr("Charging"), battery(charge)},
        {tr("Absent"), battery(takeOut)},
        {tr("Disabled"), battery([](QWidget* widget) { widget->setEnabled(false); })},
        {tr("Another fill colour"),
         battery([](CBatteryStatusWidget* widget) { widget->setFillColor(QColor(0, 140, 60)); })},
        {tr("Frame width 2"),
         battery([](CBatteryStatusWidget* widget) { widget->setFrameWidth(2); })},
        {tr("Dark palette"), [] { return makeBattery(usualPercent); }, ClassState::Dark},
        {tr("Dark, charging"), battery(charge), ClassState::Dark},
        {tr("Dark, absent"), battery(takeOut), ClassState::Dark},
    };
    return sheet;
}
