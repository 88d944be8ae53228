#include "PropertyList.h"

#include <QMetaProperty>
#include <QObject>

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

} // namespace

QVector<ClassProperties> propertiesByClass(const QObject& object)
{
    QVector<ClassProperties> classes;
    const QMetaObject* const actual = object.metaObject();
    for (const QMetaObject* meta = actual; meta; meta = meta->superClass()) {
        const QVector<QByteArray> names = declaredProperties(*meta, *actual);
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
