#include "TestApplication.h"

#include "Palettes.h"

#include <QStyleFactory>

#include <cstdio>

namespace test {

namespace {

constexpr int fontPixelSize = 14;

QFont repeatableFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(fontPixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Deprecated, but the only switch that keeps advances the same on every platform. Qt 6 has
    // none.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    font.setStyleStrategy(QFont::ForceIntegerMetrics);
    QT_WARNING_POP
#endif
    return font;
}

struct RegisteredTest
{
    const QMetaObject* test;
    Run run;

    const char* name() const
    {
        return test->className() + qstrlen("tst_");
    }
};

// Filled before main() by objects of other sources, so made when it is first needed.
QVector<RegisteredTest>& registeredTests()
{
    static QVector<RegisteredTest> tests;
    return tests;
}

int usage(const char* program)
{
    std::fprintf(stderr, "usage: %s CLASS [OPTION OF QT TEST...]\n", program);
    for (const RegisteredTest& test : qAsConst(registeredTests()))
        std::fprintf(stderr, "  %s\n", test.name());
    return 2;
}

} // namespace

void prepareApplication()
{
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
}

void setUpApplication()
{
    QApplication::setFont(repeatableFont());
    QApplication::setPalette(lightPalette());
    QApplication::setCursorFlashTime(0);
}

void registerTest(const QMetaObject& test, Run run)
{
    registeredTests().append({&test, run});
}

int runRegistered(int argc, char** argv)
{
    for (const RegisteredTest& test : qAsConst(registeredTests())) {
        if (argc > 1 && qstrcmp(argv[1], test.name()) == 0)
            return test.run(argc - 1, argv + 1);
    }
    return usage(argv[0]);
}

} // namespace test
