#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVector>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

struct ClassProperties
{
    QString className;
    QVector<QByteArray> names; ///< In the order of their declaration.
};

/**
 * The readable properties and hidden values of \a object by class, its own class first; classes
 * without any are left out. A property that a class declares again is listed with that class alone.
 */
QVector<ClassProperties> propertiesByClass(const QObject& object);

/// The properties that \a object was given at run time, without Qt's own private ones.
QVector<QByteArray> dynamicProperties(const QObject& object);

/// The value of the property \a name, whether it is one of Qt's or a hidden value.
QVariant propertyValue(const QObject& object, const QByteArray& name);

/// Sets it, and has \a object show what it then looks like.
void setPropertyValue(QObject* object, const QByteArray& name, const QVariant& value);
