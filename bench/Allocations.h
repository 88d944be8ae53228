#pragma once

namespace bench {

/// Blocks taken from the heap by this process so far, by whichever library.
long allocations();

} // namespace bench
