#include "PlatformMessages.h"
#include "ResourceUsage.h"
#include "TestApplication.h"
#include "Workloads.h"

#include <QPixmapCache>

using test::ResourceUsage;
using test::Workload;

namespace {

constexpr int warmUpIterations = 200;

// Caches of Qt, the font library and the allocator go on filling for a while.
constexpr qint64 heapTolerance = 64 * 1024;
constexpr qint64 residentTolerance = 2 * 1024 * 1024;

/// "./dev soak" asks for more.
int iterations()
{
    const int asked = qEnvironmentVariableIntValue("PLATFORM_LONG_LIFE");
    return asked > 0 ? asked : 400;
}

bool isNoLarger(const ResourceUsage& now, const ResourceUsage& before)
{
    return now.objects <= before.objects && now.timers <= before.timers && now.files <= before.files
        && now.heap <= before.heap + heapTolerance
        && (!ResourceUsage::isResidentExact()
            || now.resident <= before.resident + residentTolerance);
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
    test::dropPlatformMessages();
    QPixmapCache::setCacheLimit(0); // what it holds goes by and by, in half minutes
}

void tst_LongLife::nothingPilesUp_data()
{
    QTest::addColumn<Workload>("workload");
    for (const Workload& workload : test::workloads())
        QTest::newRow(workload.name) << workload;
}

void tst_LongLife::nothingPilesUp()
{
    QFETCH(Workload, workload);
    QWidget window;
    window.resize(640, 400);
    const std::function<bool(int)> repeat = workload.begin(window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    // Both from the last iteration down to the first, so that they leave the same behind.
    for (int iteration = warmUpIterations; iteration >= 0; --iteration)
        QVERIFY(repeat(iteration));
    const ResourceUsage before = ResourceUsage::now();
    for (int iteration = iterations(); iteration >= 0; --iteration)
        QVERIFY(repeat(iteration));

    ResourceUsage after;
    const bool kept = QTest::qWaitFor([&] {
        after = ResourceUsage::now();
        return isNoLarger(after, before);
    });
    qInfo() << iterations() << "iterations, before:" << before;
    qInfo() << iterations() << "iterations, after: " << after;
    QVERIFY(kept);
}

int main(int argc, char** argv)
{
    test::watchObjects();
    return test::run<tst_LongLife>(argc, argv);
}

#include "tst_LongLife.moc"
