#include "PlatformMessages.h"
#include "TestApplication.h"

#include <QAccessible>
#include <QLabel>
#include <QPointer>

#include <dlfcn.h>
#include <sys/mman.h>

namespace {

constexpr int iterations = 20;

bool isMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libplatform_widgets.so");
}

/// Takes an address range, so that a library is not loaded where it was the last time.
void takeAddresses()
{
    mmap(nullptr, 16 * 1024 * 1024, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
}

/// Asks for the accessible interfaces of all, as assistive technology does.
int accessibleChildren(QWidget& widget)
{
    int count = 0;
    for (QWidget* child : widget.findChildren<QWidget*>())
        count += QAccessible::queryAccessibleInterface(child) ? 1 : 0;
    return count;
}

} // namespace

/**
 * The library comes and goes with a part of an application that goes on running.
 *
 * The part may not ask for properties of enumerations and of Style::Animation by name: Qt then
 * keeps pointers to functions for these types for good, as it does for any library's.
 */
class tst_LoadedWhileRunning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void comesAndGoes();
};

void tst_LoadedWhileRunning::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_LoadedWhileRunning::comesAndGoes()
{
    QWidget window;
    window.resize(600, 800);
    window.setStyleSheet(
        QStringLiteral("Switch { color: red; } *[inputValid=\"true\"] { color: blue; }"));
    auto* label = new QLabel(QStringLiteral("the application's own"), &window);
    window.show();
    for (int iteration = 0; iteration < iterations; ++iteration) {
        QVERIFY(!isMapped());
        void* part = dlopen(LOADED_FORM, RTLD_NOW | RTLD_LOCAL);
        QVERIFY2(part, part ? "" : dlerror());
        const auto newForm = reinterpret_cast<QWidget* (*)(QWidget*)>(dlsym(part, "newLoadedForm"));
        QWidget* form = newForm(&window);
        form->show();
        QCoreApplication::processEvents();
        window.grab();
        QVERIFY(accessibleChildren(*form) > 7);
        delete form;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(dlclose(part), 0);
        QVERIFY(!isMapped());

        takeAddresses();
        label->setText(QString::number(iteration));
        QCoreApplication::processEvents();
        QVERIFY(!window.grab().isNull());
        QLabel unknown; // for which Qt asks every factory
        QVERIFY(QAccessible::queryAccessibleInterface(&unknown));
    }
}

int main(int argc, char** argv)
{
    return test::run<tst_LoadedWhileRunning>(argc, argv);
}

#include "tst_LoadedWhileRunning.moc"
