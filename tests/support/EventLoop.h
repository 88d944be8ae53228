#pragma once

namespace test {

/// Processes the events that are pending, and then the deletions that are due.
void processEvents();

/// Processes what is pending, and what follows from it.
void waitUntilIdle();

} // namespace test
