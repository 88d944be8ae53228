#include "AccessibleBattery.h"

#include "../frame/AccessibleReadOnly.h"
#include "../frame/Rounding.h"
#include "BatteryFlags.h"

namespace ui {

QAccessibleInterface* CBatteryStatusWidget::AccessibleBattery::make(CBatteryStatusWidget* battery)
{
    return new AccessibleReadOnly(battery, {QAccessible::ProgressBar, text, charge, nullptr});
}

/// In percent.
int CBatteryStatusWidget::AccessibleBattery::charge(const QWidget& battery)
{
    return roundedHalfUp(static_cast<const CBatteryStatusWidget&>(battery).m_charge * 100);
}

QString CBatteryStatusWidget::AccessibleBattery::text(const QWidget& battery,
                                                      QAccessible::Text kind)
{
    switch (kind) {
    case QAccessible::Name:
        return tr("Battery");
    case QAccessible::Description:
        return condition(battery);
    case QAccessible::Value:
        return tr("%1%").arg(charge(battery));
    default:
        return QString();
    }
}

QString CBatteryStatusWidget::AccessibleBattery::condition(const QWidget& battery)
{
    const int flags = static_cast<const CBatteryStatusWidget&>(battery).m_flags;
    if (!(flags & BatteryPresent))
        return tr("absent");
    if (flags & BatteryCharging)
        return tr("charging");
    return QString();
}

} // namespace ui
