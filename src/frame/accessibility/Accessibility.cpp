#include "Accessibility.h"

#include "AccessibleBattery.h"
#include "AccessibleLink.h"
#include "ClickableLabel.h"
#include "ui/CBatteryStatusWidget.h"

namespace ui {

namespace {

/// An interface for \a object if it is a \a Widget: the class's name alone does not tell, since an
/// application may have a class of its own by that name.
template <typename Widget, typename Interface>
QAccessibleInterface* interfaceFor(QObject* object)
{
    auto* widget = qobject_cast<Widget*>(object);
    return widget ? new Interface(widget) : nullptr;
}

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String("ui::CBatteryStatusWidget"))
        return interfaceFor<CBatteryStatusWidget, AccessibleBattery>(object);
    if (className == QLatin1String("ClickableLabel"))
        return interfaceFor<ClickableLabel, AccessibleLink>(object);
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
