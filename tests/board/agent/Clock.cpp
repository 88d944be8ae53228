#include "Clock.h"

#include <cerrno>
#include <ctime>

std::int64_t now()
{
    timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return std::int64_t(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

void pass(std::int64_t milliseconds)
{
    timespec left = {time_t(milliseconds / 1000), long(milliseconds % 1000 * 1000000)};
    while (nanosleep(&left, &left) < 0 && errno == EINTR) { }
}
