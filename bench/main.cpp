#include "Allocations.h"
#include "Browsing.h"
#include "Row.h"

#include <QApplication>
#include <QTextStream>

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

namespace {

/// Calls \a visit with the name and the set-up of every filled cell of the table.
void forEachCell(const std::function<void(const QString&, const bench::Setup&)>& visit)
{
    const QVector<bench::Row> rows = bench::allRows();
    for (const bench::Row& row : rows) {
        visit(row.name + QStringLiteral("|ours"), row.ours);
        if (row.stock)
            visit(row.name + QStringLiteral("|stock"), row.stock);
        if (row.floor)
            visit(row.name + QStringLiteral("|floor"), row.floor);
    }
}

/// Makes a cell's work ready, and runs it until it has filled its caches.
bench::Work warmedUp(const bench::Setup& setup)
{
    constexpr int runs = 2;
    bench::Work work = setup();
    for (int i = 0; i < runs; ++i)
        work();
    return work;
}

/// Under callgrind: counts one run of every cell.
void countInstructions()
{
    forEachCell([](const QString& name, const bench::Setup& setup) {
        const bench::Work work = warmedUp(setup);
        CALLGRIND_TOGGLE_COLLECT;
        work();
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(name.toUtf8().constData());
    });
}

/// Blocks that one run of every cell takes from the heap.
void countAllocations()
{
    QTextStream out(stdout);
    forEachCell([&out](const QString& name, const bench::Setup& setup) {
        const bench::Work work = warmedUp(setup);
        const long before = bench::allocations();
        work();
        const long taken = bench::allocations() - before;
        out << name << '\t' << taken << '\n';
    });
}

void registerTimings()
{
    forEachCell([](const QString& name, const bench::Setup& setup) {
        benchmark::RegisterBenchmark(name.toUtf8().constData(), [setup](benchmark::State& state) {
            const bench::Work work = setup();
            for (auto _ : state)
                work();
        });
    });
}

void listStockNames()
{
    QTextStream out(stdout);
    const QVector<bench::Row> rows = bench::allRows();
    for (const bench::Row& row : rows)
        out << row.name << '\t' << row.stockName << '\n';
}

/// What the program does instead of timing, by option.
struct Mode
{
    const char* option;
    void (*run)();
};

void browse()
{
    QTextStream out(stdout);
    bench::compareBrowsing(out);
}

const Mode modes[] = {
    {"--rows", listStockNames}, // the rows of the table
    {"--count", countInstructions}, // run it under callgrind
    {"--allocations", countAllocations},
    {"--browsing", browse}, // large directories
};

} // namespace

/// Times every cell, with Google Benchmark's options, unless the first argument asks for another mode.
int main(int argc, char** argv)
{
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    for (const Mode& mode : modes) {
        if (argc > 1 && qstrcmp(argv[1], mode.option) == 0) {
            mode.run();
            return 0;
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    registerTimings();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
