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

/// Under callgrind: counts one run of every cell, after runs that fill the caches.
void countInstructions()
{
    forEachCell([](const QString& name, const bench::Setup& setup) {
        constexpr int warmUps = 2;
        const bench::Work work = setup();
        for (int i = 0; i < warmUps; ++i)
            work();
        CALLGRIND_TOGGLE_COLLECT;
        work();
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(name.toUtf8().constData());
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

} // namespace

/// --count counts instructions (under callgrind), --rows lists the rows; else the options are Google Benchmark's.
int main(int argc, char** argv)
{
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(QLatin1String("--rows"))) {
        listStockNames();
        return 0;
    }
    if (arguments.contains(QLatin1String("--count"))) {
        countInstructions();
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    registerTimings();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
