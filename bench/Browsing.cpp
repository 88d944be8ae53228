#include "Browsing.h"

#include <ui/FileBrowserWidget.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QListView>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <functional>
#include <memory>

namespace bench {

namespace {

/// A way of looking at a directory: the window, and the view in it that shows the files.
struct Viewer
{
    std::unique_ptr<QWidget> window;
    QAbstractItemView* view;
    std::shared_ptr<QObject> model;
};

struct Measurement
{
    qint64 firstRows = 0; ///< Until the view has rows, in milliseconds.
    qint64 allRows = 0; ///< Until it has all of them.
    qint64 longestBlock = 0; ///< Of the event loop, in milliseconds.
    qint64 memory = 0; ///< Growth of the resident set, in kilobytes.
};

Viewer openBrowser(const QString& path)
{
    auto browser = std::make_unique<ui::FileBrowserWidget>(nullptr);
    browser->setAllowedDirs({path});
    auto* view = browser->findChild<QListView*>();
    return {std::move(browser), view, {}};
}

Viewer openDialog(const QString& path)
{
    auto dialog = std::make_unique<QFileDialog>(nullptr, QString(), path);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    auto* view = dialog->findChild<QListView*>(QStringLiteral("listView"));
    return {std::move(dialog), view, {}};
}

Viewer openBareView(const QString& path)
{
    auto model = std::make_shared<QFileSystemModel>();
    auto view = std::make_unique<QListView>();
    view->setWrapping(true);
    view->setResizeMode(QListView::Adjust);
    view->setModel(model.get());
    view->setRootIndex(model->setRootPath(path));
    auto* shown = view.get();
    return {std::move(view), shown, model};
}

qint64 residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).simplified().split(' ').constFirst().toLongLong();
    }
    return 0;
}

void makeFiles(const QString& path, int count)
{
    for (int i = 0; i < count; ++i)
        QFile(QStringLiteral("%1/file-%2").arg(path).arg(i)).open(QIODevice::WriteOnly);
}

Measurement measure(const std::function<Viewer(const QString&)>& open, const QString& path,
                    int count)
{
    constexpr qint64 patience = 120000;
    Measurement result;
    const qint64 before = residentKilobytes();
    QElapsedTimer clock;
    clock.start();
    Viewer viewer = open(path);
    viewer.window->resize(760, 420);
    viewer.window->show();

    qint64 turn = clock.elapsed();
    result.longestBlock = turn;
    int rows = 0;
    while (rows < count && clock.elapsed() < patience) {
        QCoreApplication::processEvents();
        const qint64 now = clock.elapsed();
        result.longestBlock = qMax(result.longestBlock, now - turn);
        turn = now;
        rows = viewer.view->model()->rowCount(viewer.view->rootIndex());
        if (rows > 0 && result.firstRows == 0)
            result.firstRows = now;
    }
    QCoreApplication::processEvents();
    result.longestBlock = qMax(result.longestBlock, clock.elapsed() - turn);
    result.allRows = clock.elapsed();
    result.memory = residentKilobytes() - before;
    return result;
}

} // namespace

void compareBrowsing(QTextStream& out)
{
    struct Way
    {
        const char* name;
        Viewer (*open)(const QString& path);
    };
    out << "| Files | Opened with | first rows, ms | all shown, ms | longest block, ms | memory, "
           "kB |\n"
        << "|--:|---|--:|--:|--:|--:|\n";
    for (int count : {100, 10000, 100000}) {
        const QTemporaryDir directory;
        makeFiles(directory.path(), count);
        for (const Way& way :
             {Way{"bare model and view", openBareView}, Way{"FileBrowserWidget", openBrowser},
              Way{"QFileDialog", openDialog}}) {
            const Measurement m = measure(way.open, directory.path(), count);
            out << "| " << count << " | " << way.name << " | " << m.firstRows << " | " << m.allRows
                << " | " << m.longestBlock << " | " << m.memory << " |" << Qt::endl;
        }
    }
}

} // namespace bench
