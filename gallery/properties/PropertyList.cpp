#include "PropertyList.h"

#include "HiddenValues.h"

#include <Animator.h>
#include <Switch.h>

#include <QMetaProperty>
#include <QPointer>
#include <QStyle>
#include <QWidget>

namespace {

QVector<QByteArray> declaredProperties(const QMetaObject& declaring, const QMetaObject& actual)
{
    QVector<QByteArray> names;
    for (int index = declaring.propertyOffset(); index < declaring.propertyCount(); ++index) {
        const QMetaProperty property = declaring.property(index);
        const bool isHidden = actual.indexOfProperty(property.name()) != index;
        if (property.isReadable() && !isHidden)
            names.append(property.name());
    }
    return names;
}

/// A style sheet that selects on a dynamic property looks at it only when it polishes the widget.
void polishAnew(QWidget& widget)
{
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

/// A switch that is given another look shows that of its off state until it is switched.
void showStateAnew(Switch& control)
{
    control.toggle(control.checkState());
    const QList<Animator*> animators = control.findChildren<Animator*>();
    for (Animator* animator : animators)
        animator->setCurrentTime(animator->totalDuration());
}

} // namespace

QVector<ClassProperties> propertiesByClass(const QObject& object)
{
    QVector<ClassProperties> classes;
    const QMetaObject* const actual = object.metaObject();
    for (const QMetaObject* meta = actual; meta; meta = meta->superClass()) {
        const QVector<QByteArray> names =
            hiddenvalues::names(*meta) + declaredProperties(*meta, *actual);
        if (!names.isEmpty())
            classes.append({QString::fromLatin1(meta->className()), names});
    }
    return classes;
}

QVector<QByteArray> dynamicProperties(const QObject& object)
{
    QVector<QByteArray> names;
    const QList<QByteArray> all = object.dynamicPropertyNames();
    for (const QByteArray& name : all) {
        if (!name.startsWith("_q_"))
            names.append(name);
    }
    return names;
}

QVariant propertyValue(const QObject& object, const QByteArray& name)
{
    return hiddenvalues::has(object, name) ? hiddenvalues::value(object, name)
                                           : object.property(name.constData());
}

void setPropertyValue(QObject* object, const QByteArray& name, const QVariant& value)
{
    const QPointer<QObject> self(object); // setting a property may delete the object
    if (hiddenvalues::has(*object, name)) {
        hiddenvalues::set(object, name, value);
        return;
    }
    const bool isStatic = object->setProperty(name.constData(), value);
    auto* widget = qobject_cast<QWidget*>(self.data());
    if (!isStatic && widget)
        polishAnew(*widget);
    auto* control = qobject_cast<Switch*>(self.data());
    if (control
        && Switch::staticMetaObject.indexOfProperty(name.constData())
            >= Switch::staticMetaObject.propertyOffset())
        showStateAnew(*control);
}
