#include "Machines.h"
#include "MenuCloser.h"
#include "Player.h"
#include "Progress.h"
#include "Search.h"
#include "StepFile.h"
#include "TestApplication.h"
#include "Warnings.h"

#include <QElapsedTimer>

#include <cstdio>

namespace {

void print(const QString& text)
{
    std::fputs(qPrintable(text), stdout);
    std::fflush(stdout);
}

int usage()
{
    std::fputs("usage: soak --list\n"
               "       soak --search WIDGET SEED STEPS   random steps, the fewest that break it\n"
               "       soak --play WIDGET FILE PROGRESS  the steps of a file, in this process\n",
               stderr);
    return 2;
}

int list()
{
    print(soak::machineNames().join(QLatin1Char('\n')) + QLatin1Char('\n'));
    return 0;
}

int searchIn(const QString& widget, const QString& seed, const QString& count)
{
    QElapsedTimer timer;
    timer.start();
    const QString report =
        soak::search(QCoreApplication::applicationFilePath(), widget, seed.toUInt(), count.toInt());
    const int failures = report.isEmpty() ? 0 : 1;
    print(report);
    print(QStringLiteral("%1: %2 steps from seed %3, %4 s, %5 failures\n")
              .arg(widget, count, seed)
              .arg(timer.elapsed() / 1000)
              .arg(failures));
    return failures;
}

int playFile(const QString& widget, const QString& fileName, const QString& progressFile)
{
    const std::unique_ptr<soak::Machine> machine = soak::newMachine(widget);
    if (!machine)
        return usage();
    soak::takeWarnings(); // those of the start
    soak::MenuCloser menuCloser;
    soak::Progress progress(progressFile);
    const soak::Steps steps = soak::fromLines(soak::readLines(fileName), *machine);
    const soak::Outcome outcome =
        soak::play(*machine, steps, [&](int step) { progress.set(step); });
    if (outcome.broken.isEmpty())
        return 0;
    print(outcome.broken + QLatin1Char('\n'));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    soak::collectWarnings();
    test::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    test::settleApplication();
    const QStringList arguments = QCoreApplication::arguments();
    const QString mode = arguments.value(1);
    if (mode == QLatin1String("--list") && arguments.size() == 2)
        return list();
    if (mode == QLatin1String("--search") && arguments.size() == 5)
        return searchIn(arguments.at(2), arguments.at(3), arguments.at(4));
    if (mode == QLatin1String("--play") && arguments.size() == 5)
        return playFile(arguments.at(2), arguments.at(3), arguments.at(4));
    return usage();
}
