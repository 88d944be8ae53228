#pragma once

namespace test {

/// Processes the events that are pending, and then the deletions that are due.
void processEvents();

} // namespace test
