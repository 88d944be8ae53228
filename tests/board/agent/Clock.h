#pragma once

#include <cstdint>

/// Milliseconds since the board started.
std::int64_t now();

/// Lets \a milliseconds of the board's time pass.
void pass(std::int64_t milliseconds);
