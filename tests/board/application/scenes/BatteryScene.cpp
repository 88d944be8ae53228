#include "scenes/BatteryScene.h"

#include <ui/CBatteryStatusWidget.h>

#include <QGridLayout>

using ui::CBatteryStatusWidget;

BatteryScene::BatteryScene()
{
    constexpr int columns = 20;
    constexpr int fullCharge = 100;
    auto* grid = new QGridLayout(this);
    int place = 0;
    const auto add = [&](int charge) {
        auto* battery = new CBatteryStatusWidget;
        battery->setChargePercentage(charge);
        grid->addWidget(battery, place / columns, place % columns);
        ++place;
        return battery;
    };
    for (int charge = 0; charge <= fullCharge; ++charge)
        add(charge);
    add(60)->setBatteryCharging(true);
    add(60)->setBatteryPresent(false);
}
