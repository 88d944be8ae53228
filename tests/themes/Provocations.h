#pragma once

#include <QMetaMethod>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace test {

/// A class of the library whose objects are to be deleted in slots of their signals.
struct Subject
{
    const QMetaObject* metaObject;
    /// An object that dies with \a window.
    QObject* (*create)(QWidget* window);
};

/// Every class of the library that can emit signals.
QVector<Subject> subjects();

/// A way to make an object emit a signal.
struct Provocation
{
    const char* name;
    /// Of the object nothing may be left afterwards.
    std::function<void(QObject* sender, const QMetaMethod& signal)> run;
    /// Whether the object may only be deleted by deleteLater() meanwhile.
    bool later;
};

/// The ways to make a \a metaObject's object emit \a signal; none if none is known.
QVector<Provocation> provocations(const QMetaObject& metaObject, const QMetaMethod& signal);

/// Of the arguments that Qt's own signals carry.
void registerArgumentTypes();

} // namespace test
