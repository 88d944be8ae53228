#include "Idle.h"

#include "AllClasses.h"

#include <QAbstractEventDispatcher>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

namespace bench {

namespace {

constexpr int startTime = 1000; // milliseconds until the directory is read and everything painted

void fill(QWidget* window)
{
    auto* layout = new QVBoxLayout(window);
    for (const test::ClassInfo& info : test::allClasses()) {
        if (QWidget* widget = info.createTypicalWidget(window))
            layout->addWidget(widget);
    }
}

void runEventLoop(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

int wakeUpsOf(QWidget& window, int milliseconds)
{
    window.show();
    runEventLoop(startTime);
    int wakeUps = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                     &window, [&wakeUps] { ++wakeUps; });
    runEventLoop(milliseconds);
    return wakeUps;
}

} // namespace

void countWakeUps(const QStringList& arguments, QTextStream& out)
{
    const int watching = arguments.value(0).toInt();
    QWidget full;
    fill(&full);
    QWidget empty; // the loop itself wakes up at its start and its end
    out << watching << '\t' << wakeUpsOf(full, watching) << '\t' << wakeUpsOf(empty, watching)
        << '\n';
}

} // namespace bench
