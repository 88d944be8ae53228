#pragma once

#include <QApplication>
#include <QtTest>

namespace test {

/// Before the application object: nothing of the desktop's own settings may reach the pixels.
void prepareApplication();

/// After it: Fusion style, a font without hinting, the light palette, no blinking cursor.
void setUpApplication();

/// Runs the test class \a Test with a repeatable look, as the whole of a program's main().
template <typename Test>
int run(int argc, char** argv)
{
    prepareApplication();
    QApplication application(argc, argv);
    setUpApplication();
    Test instance;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&instance, argc, argv);
}

using Run = int (*)(int argc, char** argv);

/// Makes a test class known to the test program that its source is linked to.
void registerTest(const QMetaObject& test, Run run);

/// Runs the registered class that the first argument names without its "tst_", with what follows as
/// the arguments of Qt's tests. Any other name lists the classes.
int runRegistered(int argc, char** argv);

/// One object of this beside each test class of a folder: a folder's classes share a program, which
/// runs one of them in a process.
template <typename Test>
struct Registration
{
    Registration()
    {
        registerTest(Test::staticMetaObject, run<Test>);
    }
};

} // namespace test
