#include "Browsing.h"

#include <ui/FileBrowserWidget.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QListView>
#include <QTextStream>

#include <platform/ui/style/StyleManager.h>

#include <chrono>
#include <ctime>
#include <memory>
#include <thread>

using platform::ui::style::Fonts;
using platform::ui::style::StyleManager;

namespace bench {

namespace {

/// A way of looking at a directory: the window, and the view in it that shows the files.
struct Viewer
{
    std::unique_ptr<QWidget> window;
    QAbstractItemView* view;
};

Viewer openBrowser(const QString& path)
{
    auto browser = std::make_unique<ui::FileBrowserWidget>(nullptr);
    browser->setAllowedDirs({path});
    auto* view = browser->findChild<QListView*>();
    return {std::move(browser), view};
}

Viewer openDialog(const QString& path)
{
    auto dialog = std::make_unique<QFileDialog>(nullptr, QString(), path);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setViewMode(QFileDialog::List);
    auto* view = dialog->findChild<QListView*>(QStringLiteral("listView"));
    return {std::move(dialog), view};
}

Viewer openBareView(const QString& path)
{
    auto view = std::make_unique<QListView>();
    auto* model = new QFileSystemModel(view.get());
    view->setWrapping(true);
    view->setResizeMode(QListView::Adjust);
    view->setModel(model);
    view->setRootIndex(model->setRootPath(path));
    auto* shown = view.get();
    return {std::move(view), shown};
}

struct Way
{
    const char* name;
    Viewer (*open)(const QString& path);
    QSize window; ///< Leaves the same area to the view in each.
};

const Way ways[] = {
    {"bare", openBareView, {738, 360}},
    {"ours", openBrowser, {760, 420}},
    {"dialog", openDialog, {898, 474}},
};

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

/// Watches a view fill itself while events are processed.
class Opening : public QObject
{
public:
    Opening(const Way& way, const QString& path)
    {
        m_clock.start();
        m_viewer = way.open(path);
        qApp->installEventFilter(this);
        m_viewer.window->resize(way.window);
        m_viewer.window->show();
        m_longestBlock = m_clock.elapsed();
    }

    /// Until nothing happens any more: the model sorts when it has all, and the view lays out
    /// again.
    void showAll(int count)
    {
        constexpr qint64 timeout = 300000;
        constexpr int quiet = 100;
        constexpr std::chrono::milliseconds pause(1);
        int quietIterations = 0;
        while (quietIterations < quiet && m_clock.elapsed() < timeout) {
            processEvents();
            note(count);
            quietIterations = m_busy || m_all < 0 ? 0 : quietIterations + 1;
            std::this_thread::sleep_for(pause); // leaves the processor to the model's thread
        }
    }

    QString results() const
    {
        return QStringLiteral("%1\t%2\t%3").arg(m_screenful).arg(m_all).arg(m_longestBlock);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_busy = true;
        const bool ofFiles = watched == m_viewer.view->viewport();
        m_painted = m_painted || (ofFiles && event->type() == QEvent::Paint);
        return false;
    }

private:
    void processEvents()
    {
        m_painted = false;
        m_busy = false;
        const qint64 start = m_clock.elapsed();
        QCoreApplication::processEvents();
        m_longestBlock = qMax(m_longestBlock, m_clock.elapsed() - start);
    }

    void note(int count)
    {
        const int rows = m_viewer.view->model()->rowCount(m_viewer.view->rootIndex());
        if (!m_painted || rows == 0)
            return;
        const bool all = rows == count;
        if (m_screenful < 0 && (all || overflows(rows)))
            m_screenful = m_clock.elapsed();
        if (all)
            m_all = m_clock.elapsed(); // anew with each further painting
    }

    /// Whether there is more than the view can show.
    bool overflows(int rows) const
    {
        const QAbstractItemView* view = m_viewer.view;
        const QModelIndex last = view->model()->index(rows - 1, 0, view->rootIndex());
        return !view->viewport()->rect().intersects(view->visualRect(last));
    }

    QElapsedTimer m_clock;
    Viewer m_viewer;
    bool m_busy = false;
    bool m_painted = false;
    qint64 m_screenful = -1;
    qint64 m_all = -1;
    qint64 m_longestBlock = 0;
};

} // namespace

void browse(const QStringList& arguments, QTextStream& out)
{
    for (const Way& way : ways) {
        if (arguments.value(0) != QLatin1String(way.name))
            continue;
        // All ways with the font of the file browser: it decides how many files make a screenful.
        QApplication::setFont(StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser));
        const qint64 memory = residentKilobytes();
        const std::clock_t time = std::clock(); // of the processor, in all threads
        Opening opening(way, arguments.value(1));
        opening.showAll(arguments.value(2).toInt());
        constexpr std::clock_t clocksPerMillisecond = CLOCKS_PER_SEC / 1000;
        out << opening.results() << '\t' << (std::clock() - time) / clocksPerMillisecond << '\t'
            << residentKilobytes() - memory << '\n';
    }
}

} // namespace bench
