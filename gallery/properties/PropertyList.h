#pragma once

#include <QByteArray>
#include <QString>
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
 * The readable properties of \a object by class, its own class first; classes without any are left
 * out. A property that a class declares again is listed with that class alone.
 */
QVector<ClassProperties> propertiesByClass(const QObject& object);

/// The properties that \a object was given at run time, without Qt's own private ones.
QVector<QByteArray> dynamicProperties(const QObject& object);
