#include "Allocations.h"

#include <atomic>
#include <cstddef>
#include <malloc.h>

// The program's own malloc() comes before the C library's for every library that it loads.

// NOLINTBEGIN(bugprone-reserved-identifier): the names are glibc's
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

std::atomic<qint64> taken{0};

} // namespace

extern "C" __attribute__((visibility("default"))) void* malloc(std::size_t size)
{
    ++taken;
    return __libc_malloc(size);
}

extern "C" __attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size)
{
    ++taken;
    return __libc_calloc(count, size);
}

extern "C" __attribute__((visibility("default"))) void* realloc(void* block, std::size_t size)
{
    ++taken;
    return __libc_realloc(block, size);
}

namespace bench {

qint64 blocksTaken()
{
    return taken;
}

qint64 bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

} // namespace bench
