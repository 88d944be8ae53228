#include "AccessibleBattery.h"

#include "BatteryFlags.h"

#include <QCoreApplication>

namespace ui {

CBatteryStatusWidget::AccessibleBattery::AccessibleBattery(CBatteryStatusWidget* battery)
    : QAccessibleWidget(battery, QAccessible::ProgressBar)
{
}

void* CBatteryStatusWidget::AccessibleBattery::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State CBatteryStatusWidget::AccessibleBattery::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    return state;
}

/// What the application says of the battery comes first.
QString CBatteryStatusWidget::AccessibleBattery::text(QAccessible::Text kind) const
{
    QString given = QAccessibleWidget::text(kind);
    if (!given.isEmpty())
        return given;
    switch (kind) {
    case QAccessible::Name:
        return QCoreApplication::translate("ui::CBatteryStatusWidget", "Battery");
    case QAccessible::Description:
        return condition();
    case QAccessible::Value:
        return QCoreApplication::translate("ui::CBatteryStatusWidget", "%1%")
            .arg(currentValue().toInt());
    default:
        return given;
    }
}

QVariant CBatteryStatusWidget::AccessibleBattery::currentValue() const
{
    return qRound(battery()->m_charge * 100);
}

void CBatteryStatusWidget::AccessibleBattery::setCurrentValue(const QVariant&)
{
    // The charge is shown, not set by the user.
}

QVariant CBatteryStatusWidget::AccessibleBattery::minimumValue() const
{
    return 0;
}

QVariant CBatteryStatusWidget::AccessibleBattery::maximumValue() const
{
    return 100;
}

QVariant CBatteryStatusWidget::AccessibleBattery::minimumStepSize() const
{
    return 1;
}

const CBatteryStatusWidget* CBatteryStatusWidget::AccessibleBattery::battery() const
{
    return static_cast<const CBatteryStatusWidget*>(widget());
}

QString CBatteryStatusWidget::AccessibleBattery::condition() const
{
    const int flags = battery()->m_flags;
    if (!(flags & BatteryPresent))
        return QCoreApplication::translate("ui::CBatteryStatusWidget", "absent");
    if (flags & BatteryCharging)
        return QCoreApplication::translate("ui::CBatteryStatusWidget", "charging");
    return QString();
}

} // namespace ui
