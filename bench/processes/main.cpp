#include "Shown.h"
#include "Widgets.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QVBoxLayout>

#include <valgrind/callgrind.h>

#include <memory>

// One process that shows one window, made of this library's widgets or of their counterparts.

namespace {

using Window = std::unique_ptr<QWidget>;

constexpr QSize screen(800, 480); // of a device
constexpr int filesShown = 15; // as many as fill it

Window makeCrowd(int ofEach)
{
    constexpr int columns = 20;
    constexpr QSize place(40, 53);
    auto window = std::make_unique<QWidget>();
    int index = 0;
    for (const bench::Maker make : bench::makers()) {
        for (int i = 0; i < ofEach; ++i, ++index) {
            const QPoint corner(index % columns * place.width(), index / columns * place.height());
            make(window.get())->setGeometry(QRect(corner, place));
        }
    }
    return window;
}

Window makeButtons()
{
    auto window = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(window.get());
    for (const char* icon : {":/icons/tile_view.svg", ":/icons/list_view.svg"})
        column->addWidget(bench::makeIconButton(QLatin1String(icon), window.get()));
    return window;
}

/// What is shown, with a directory of files.
struct Scenario
{
    const char* name;
    Window (*make)(const QString& directory);
    int files = 0; ///< That are to be seen in the first frame.
};

const Scenario scenarios[] = {
    {"an empty window", [](const QString&) { return makeCrowd(0); }},
    {"one of each widget", [](const QString&) { return makeCrowd(1); }},
    {"20 of each widget", [](const QString&) { return makeCrowd(20); }},
    {"a browser, 15 files",
     [](const QString& directory) { return Window(bench::makeBrowser(directory)); }, filesShown},
    {"a browser beside a QFileDialog, 15 files",
     [](const QString& directory) { return Window(bench::makeFileDialog(directory)); }, filesShown},
    {"the settings example", [](const QString&) { return Window(bench::makeSettings()); }},
    {"two buttons with the icons", [](const QString&) { return makeButtons(); }},
};

/// Of the process, in kilobytes: what it has written, and what it could share with others.
QString memory()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    qint64 resident = 0;
    qint64 written = 0;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.first() == "Rss:")
            resident = fields.at(1).toLongLong();
        if (fields.first() == "Private_Dirty:")
            written = fields.at(1).toLongLong();
    }
    return QStringLiteral("%1\t%2").arg(written).arg(resident - written);
}

void run(const Scenario& scenario, const QString& cell, const QString& directory)
{
    const Window window = scenario.make(directory);
    window->resize(screen);
    window->show();
    bench::deliverEvents();
    while (scenario.files > 0 && !bench::showsFiles(*window, scenario.files)) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        bench::deliverEvents();
    }
    CALLGRIND_DUMP_STATS_AT(qUtf8Printable(cell));
    QTextStream(stdout) << cell << '\t' << memory() << '\n';
}

} // namespace

/// Without arguments: lists the scenarios. With a scenario, the name of its cell and a directory:
/// shows it up to its first frame, and prints the cell and the memory that the process has then.
int main(int argc, char** argv)
{
    if (argc < 4) {
        for (const Scenario& scenario : scenarios)
            QTextStream(stdout) << scenario.name << '\n';
        return 0;
    }
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle(QStringLiteral("fusion"));
    const QApplication application(argc, argv);
    for (const Scenario& scenario : scenarios) {
        if (qstrcmp(scenario.name, argv[1]) == 0)
            run(scenario, QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    return 0;
}
