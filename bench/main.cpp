#include "Allocations.h"
#include "Browsing.h"
#include "Damage.h"
#include "Idle.h"
#include "Row.h"

#include <QApplication>
#include <QTextStream>

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

namespace {

/// Calls \a visit with the name and the set-up of every filled cell of \a row.
template <typename Visit>
void forEachCell(const bench::Row& row, const Visit& visit)
{
    visit(row.name + QStringLiteral("|ours"), row.ours);
    if (row.counterpart)
        visit(row.name + QStringLiteral("|counterpart"), row.counterpart);
    if (row.baseline)
        visit(row.name + QStringLiteral("|baseline"), row.baseline);
}

/// Makes a cell's work ready, and runs it until it has filled its caches.
bench::Work warmedUp(const bench::Row& row, const bench::Setup& setup)
{
    const int runs = row.parts == 1 ? 2 : 1;
    const bench::Work work = setup();
    for (int i = 0; i < runs; ++i) {
        work.prepare();
        work();
    }
    work.prepare();
    return work;
}

/// Under callgrind: counts one run of every cell.
void countInstructions(const bench::Row& row)
{
    forEachCell(row, [&row](const QString& name, const bench::Setup& setup) {
        const bench::Work work = warmedUp(row, setup);
        CALLGRIND_TOGGLE_COLLECT;
        work();
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(name.toUtf8().constData());
    });
}

/// Blocks that one run of every cell takes from the heap, and bytes that it keeps.
void countAllocations(const bench::Row& row)
{
    QTextStream out(stdout);
    forEachCell(row, [&](const QString& name, const bench::Setup& setup) {
        const bench::Work work = warmedUp(row, setup);
        const qint64 blocks = bench::blocksTaken();
        const qint64 bytes = bench::bytesInUse();
        work();
        out << name << '\t' << bench::blocksTaken() - blocks << '\t' << bench::bytesInUse() - bytes
            << '\n';
    });
}

void time(benchmark::State& state, const bench::Work& work)
{
    for (auto _ : state) {
        if (work.needsPreparation()) { // stopping the clock takes some time itself
            state.PauseTiming();
            work.prepare();
            state.ResumeTiming();
        }
        work();
    }
}

void registerTimings(const bench::Row& row)
{
    forEachCell(row, [&row](const QString& name, const bench::Setup& setup) {
        auto* cell = benchmark::RegisterBenchmark(
            name.toUtf8().constData(), [setup](benchmark::State& state) { time(state, setup()); });
        if (row.parts > 1)
            cell->Iterations(1); // what comes before each is much longer
    });
}

void listRow(const bench::Row& row)
{
    QTextStream out(stdout);
    out << row.name << '\t' << row.counterpartName << '\t' << row.parts << '\n';
}

/// What the program does with each row, by option.
struct RowMode
{
    const char* option;
    void (*run)(const bench::Row& row);
};

const char* const timeOption = "--time";

// They take a regular expression: the names of the rows meant.
const RowMode rowModes[] = {
    {"--rows", listRow},
    {"--count", countInstructions}, // run it under callgrind
    {"--allocations", countAllocations},
    {timeOption, registerTimings}, // with Google Benchmark's options
};

/// What it does beside the rows.
struct Mode
{
    const char* option;
    void (*run)(const QStringList& arguments, QTextStream& out);
};

const Mode modes[] = {
    {"--browse", bench::browse}, // WAY DIRECTORY COUNT
    {"--damage", bench::compareDamage},
    {"--idle", bench::countWakeUps}, // MILLISECONDS
};

bool run(const QString& option, const QStringList& arguments)
{
    for (const RowMode& mode : rowModes) {
        if (option == QLatin1String(mode.option)) {
            const QVector<bench::Row> rows = bench::rows(arguments.value(0));
            for (const bench::Row& row : rows)
                mode.run(row);
            return true;
        }
    }
    QTextStream out(stdout);
    for (const Mode& mode : modes) {
        if (option == QLatin1String(mode.option)) {
            mode.run(arguments, out);
            return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv); // takes out the options that it knows
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    const QString option = QCoreApplication::arguments().value(1);
    if (!run(option, QCoreApplication::arguments().mid(2))) {
        qWarning("unknown option '%s'", qUtf8Printable(option));
        return 1;
    }
    if (option == QLatin1String(timeOption))
        benchmark::RunSpecifiedBenchmarks();
    return 0;
}
