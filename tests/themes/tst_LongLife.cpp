#include "Footprint.h"
#include "OffscreenMessages.h"
#include "TestApplication.h"
#include "Uses.h"

#include <QPixmapCache>

using soak::Footprint;
using soak::Use;

namespace {

constexpr int warmUpRounds = 200;

// Caches of Qt, the font library and the allocator go on filling for a while.
constexpr qint64 heapTolerance = 64 * 1024;
constexpr qint64 residentTolerance = 2 * 1024 * 1024;

/// "./dev soak" asks for more.
int rounds()
{
    const int asked = qEnvironmentVariableIntValue("PLATFORM_LONG_LIFE");
    return asked > 0 ? asked : 400;
}

bool isNoLarger(const Footprint& now, const Footprint& before)
{
    return now.objects <= before.objects && now.timers <= before.timers && now.files <= before.files
        && now.heap <= before.heap + heapTolerance
        && (!Footprint::isResidentExact() || now.resident <= before.resident + residentTolerance);
}

} // namespace

/// What a device does for an hour, as fast as it can be done: nothing may pile up.
class tst_LongLife : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingPilesUp_data();
    void nothingPilesUp();
};

void tst_LongLife::initTestCase()
{
    test::dropOffscreenMessages();
    QPixmapCache::setCacheLimit(0); // what it holds goes by and by, in half minutes
}

void tst_LongLife::nothingPilesUp_data()
{
    QTest::addColumn<Use>("use");
    for (const Use& use : soak::uses())
        QTest::newRow(use.name) << use;
}

void tst_LongLife::nothingPilesUp()
{
    QFETCH(Use, use);
    QWidget window;
    window.resize(640, 400);
    const std::function<bool(int)> repeat = use.begin(window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    // Both from the last round down to the first, so that they leave the same behind.
    for (int round = warmUpRounds; round >= 0; --round)
        QVERIFY(repeat(round));
    const Footprint before = Footprint::now();
    for (int round = rounds(); round >= 0; --round)
        QVERIFY(repeat(round));

    Footprint after;
    const bool kept = QTest::qWaitFor([&] {
        after = Footprint::now();
        return isNoLarger(after, before);
    });
    qInfo() << rounds() << "rounds, before:" << before;
    qInfo() << rounds() << "rounds, after: " << after;
    QVERIFY(kept);
}

int main(int argc, char** argv)
{
    soak::watchObjects();
    return test::run<tst_LongLife>(argc, argv);
}

#include "tst_LongLife.moc"
