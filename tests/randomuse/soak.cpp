#include "models/Models.h"
#include "Player.h"
#include "Search.h"
#include "TestApplication.h"

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
    std::fputs(
        "usage: soak --list\n"
        "       soak --search WIDGET SEED COUNT   random commands, the fewest that break it\n"
        "       soak --play WIDGET FILE PROGRESS  the commands of a file, in this process\n",
        stderr);
    return 2;
}

int list()
{
    print(test::modelNames().join(QLatin1Char('\n')) + QLatin1Char('\n'));
    return 0;
}

int searchIn(const QString& widget, const QString& seed, const QString& count)
{
    QElapsedTimer timer;
    timer.start();
    const QString report =
        test::search(QCoreApplication::applicationFilePath(), widget, seed.toUInt(), count.toInt());
    const int failures = report.isEmpty() ? 0 : 1;
    print(report);
    print(QStringLiteral("%1: %2 commands from seed %3, %4 s, %5 failures\n")
              .arg(widget, count, seed)
              .arg(timer.elapsed() / 1000)
              .arg(failures));
    return failures;
}

int playFile(const QString& widget, const QString& fileName, const QString& progressFile)
{
    const std::unique_ptr<test::Model> model = test::newModel(widget);
    if (!model)
        return usage();
    test::takeWarnings(); // those of the start
    test::MenuCloser menuCloser;
    test::Progress progress(progressFile);
    const test::Commands commands = test::fromLines(test::readLines(fileName), *model);
    const test::Outcome outcome =
        test::play(*model, commands, [&](int command) { progress.set(command); });
    if (outcome.broken.isEmpty())
        return 0;
    print(outcome.broken + QLatin1Char('\n'));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    test::collectWarnings();
    test::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    test::setUpApplication();
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
