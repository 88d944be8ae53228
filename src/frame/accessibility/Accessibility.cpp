#include "Accessibility.h"

#include "AccessibleBattery.h"
#include "AccessibleLink.h"
#include "ClickableLabel.h"
#include "ui/CBatteryStatusWidget.h"

namespace ui {

namespace {

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String("ui::CBatteryStatusWidget"))
        return new AccessibleBattery(static_cast<CBatteryStatusWidget*>(object));
    if (className == QLatin1String("ClickableLabel"))
        return new AccessibleLink(static_cast<ClickableLabel*>(object));
    return nullptr;
}

/// Takes the factory away again when the library is unloaded, and its code with it.
struct Registration
{
    Registration()
    {
        QAccessible::installFactory(makeInterface);
    }
    ~Registration()
    {
        QAccessible::removeFactory(makeInterface);
    }
    Q_DISABLE_COPY(Registration)
};

} // namespace

void offerAccessibility()
{
    static const Registration registration;
}

} // namespace ui
