#include "../Painting.h"
#include "../rows/Rows.h"

#include <ui/CBatteryStatusWidget.h>

#include <KCapacityBar>

namespace bench {

namespace {

constexpr QSize batterySize(40, 80);
constexpr QSize lyingSize(80, 40); // a capacity bar knows no other way
constexpr int percent = 50;

Work paintBattery()
{
    auto battery = std::make_shared<ui::CBatteryStatusWidget>();
    battery->resize(batterySize);
    battery->setChargePercentage(percent);
    return paint(battery);
}

Work paintCapacityBar()
{
    auto bar = std::make_shared<KCapacityBar>(KCapacityBar::DrawTextInline);
    bar->resize(lyingSize);
    bar->setValue(percent);
    return paint(bar);
}

} // namespace

QVector<Row> peerRows()
{
    return {{QStringLiteral("peers: battery"),
             paintBattery,
             QStringLiteral("KCapacityBar of KDE"),
             paintCapacityBar,
             {}}};
}

} // namespace bench
