#include "InvalidInput.h"

#include <QAccessible>
#include <QSet>

namespace ui {

namespace {

// A field may outlive it, and be asked for nothing then.
Q_GLOBAL_STATIC(QSet<const QObject*>, invalidFields)

} // namespace

void publishValidity(QObject* field, bool valid)
{
    if (valid != hasInvalidInput(field))
        return;
    if (valid)
        invalidFields->remove(field);
    else
        invalidFields->insert(field);
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(field, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

bool hasInvalidInput(const QObject* field)
{
    return invalidFields.exists() && invalidFields->contains(field);
}

void forgetValidity(const QObject* field)
{
    if (invalidFields.exists())
        invalidFields->remove(field);
}

} // namespace ui
