#pragma once

#include <QApplication>
#include <QtTest>

namespace test {

/// Before the application object: nothing of the desktop's own settings may reach the pixels.
void prepareApplication();

/// After it: Fusion style, a font without hinting, the light palette, no blinking cursor.
void settleApplication();

/// Runs the test class \a Test with a repeatable look, as the whole of a test program's main().
template <typename Test>
int run(int argc, char** argv)
{
    prepareApplication();
    QApplication application(argc, argv);
    settleApplication();
    Test instance;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&instance, argc, argv);
}

} // namespace test
