#include "Search.h"

#include "Machines.h"
#include "Minimise.h"
#include "StepFile.h"
#include "Trial.h"

#include <QElapsedTimer>

namespace soak {

namespace {

// A crash may come of what threads do, and be another with every step that is left out.
constexpr int maxTrials = 500;
constexpr int maxTime = 5 * 60 * 1000; // milliseconds
constexpr int maxLines = 100; // more can be had from the seed

QString report(const QString& widget, quint32 seed, const Verdict& verdict, QStringList lines)
{
    if (lines.size() > maxLines)
        lines = QStringList(QStringLiteral("...")) + lines.mid(lines.size() - maxLines);
    return QStringLiteral("%1, seed %2, step %3: %4\nFewest steps found that do the same:\n  %5\n")
        .arg(widget)
        .arg(seed)
        .arg(verdict.step)
        .arg(verdict.report.trimmed(), lines.join(QLatin1String("\n  ")));
}

} // namespace

QString search(const QString& program, const QString& widget, quint32 seed, int count)
{
    const std::unique_ptr<Machine> machine = newMachine(widget);
    if (!machine)
        return QStringLiteral("there is no machine for ") + widget;
    Steps steps = machine->steps(seed, count);
    Trial trial(program, widget);
    const Verdict verdict = trial.play(toLines(steps, *machine));
    if (!verdict.failed)
        return QString();

    steps.resize(qMin(steps.size(), verdict.step + 1));
    int trials = 0;
    QElapsedTimer time;
    time.start();
    const auto fails = [&](const Steps& fewer) {
        return ++trials <= maxTrials && time.elapsed() < maxTime
            && trial.play(toLines(fewer, *machine)).isLike(verdict);
    };
    return report(widget, seed, verdict, toLines(minimised(steps, fails), *machine));
}

} // namespace soak
