#pragma once

#include <QtGlobal>

namespace bench {

/// Blocks taken from the heap by this process so far, by whichever library.
qint64 blocksTaken();

/// Bytes of the heap in use by this process.
qint64 bytesInUse();

} // namespace bench
