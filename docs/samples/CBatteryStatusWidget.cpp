#include "Samples.h"

#include <ui/CBatteryStatusWidget.h>

#include <QBoxLayout>

void samples::battery(QWidget* window)
{
    auto* column = new QVBoxLayout(window);

    //! [CBatteryStatusWidget]
    auto* battery = new ui::CBatteryStatusWidget(window);
    battery->setFixedWidth(40); // the layout asks it for its height
    battery->setFillColor(Qt::darkGreen);
    battery->setChargePercentage(80);
    battery->setBatteryCharging(true);
    column->addWidget(battery);
    //! [CBatteryStatusWidget]
}
