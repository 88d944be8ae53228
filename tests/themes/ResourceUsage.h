#pragma once

#include <QDebug>

namespace test {

/// What the process holds.
struct ResourceUsage
{
    /// Of this moment, once nothing is left to be delivered or deleted.
    static ResourceUsage now();
    /// False with the address sanitizer, which keeps what is freed for a while, and in an emulator,
    /// which keeps the code that it has translated.
    static bool isResidentExact();

    int objects = 0; ///< QObjects.
    int timers = 0; ///< That are running.
    int files = 0; ///< Open descriptors.
    qint64 heap = 0; ///< Bytes in use.
    qint64 resident = 0; ///< Bytes of memory.
};

/// Counts QObjects from now on; to be called before there are any.
void watchObjects();

QDebug operator<<(QDebug debug, const ResourceUsage& usage);

} // namespace test
