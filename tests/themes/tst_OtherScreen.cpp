#include "PlatformMessages.h"
#include "TestApplication.h"
#include "Workloads.h"

#include <QScreen>
#include <QWindow>

using test::Workload;

/// Each workload goes on when its window is moved to another screen, of another size, and back.
class tst_OtherScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void goesOn_data();
    void goesOn();
};

void tst_OtherScreen::initTestCase()
{
    test::dropPlatformMessages();
    QCOMPARE(QGuiApplication::screens().size(), 2);
    QVERIFY(QGuiApplication::screens().first()->size()
            != QGuiApplication::screens().last()->size());
}

void tst_OtherScreen::goesOn_data()
{
    QTest::addColumn<Workload>("workload");
    for (const Workload& workload : test::workloads())
        QTest::newRow(workload.name) << workload;
}

void tst_OtherScreen::goesOn()
{
    QFETCH(Workload, workload);
    constexpr int iterations = 12;
    QWidget window;
    window.resize(500, 400);
    const std::function<bool(int)> repeat = workload.begin(window);
    window.winId(); // makes the window
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : {screens.first(), screens.last(), screens.first()}) {
        window.hide();
        window.windowHandle()->setScreen(screen);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(window.screen(), screen);
        for (int iteration = 0; iteration < iterations; ++iteration)
            QVERIFY(repeat(iteration));
        QVERIFY(!window.grab().isNull());
    }
}

const test::Registration<tst_OtherScreen> registration;

#include "tst_OtherScreen.moc"
