#pragma once

#include <QMetaMethod>
#include <QVector>

#include <functional>

namespace test {

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
