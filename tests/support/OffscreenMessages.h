#pragma once

namespace test {

/**
 * Drops the warnings in which Qt's offscreen plugin says that it cannot raise a window, grab the
 * keyboard and the like, which no test means. Call it in initTestCase().
 */
void dropOffscreenMessages();

} // namespace test
