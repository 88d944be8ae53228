#pragma once

namespace test {

/**
 * Drops the warnings of Qt's platform plugins that no test means: those in which the offscreen one
 * says that it cannot raise a window, grab the keyboard and the like, and on X11 those that come of
 * a race with the window manager. Call it in initTestCase().
 */
void dropPlatformMessages();

} // namespace test
