#include "FileSheets.h"

#include "FileTree.h"

#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>

#include <QComboBox>
#include <QDeadlineTimer>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

using ui::FileBrowserWidget;

namespace {

constexpr QSize browserSize(490, 230);
constexpr QSize treeSize(600, 130);
constexpr int longestWait = 5000; // milliseconds, for the directory to be read

enum Root { Device, Stick };

const FileTree& fileTree()
{
    static const FileTree tree;
    return tree;
}

void waitForFiles(const QAbstractItemView& view)
{
    const QDeadlineTimer deadline(longestWait);
    while (view.model()->rowCount(view.rootIndex()) == 0 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}

QListView* tileView(const FileBrowserWidget& browser)
{
    return browser.findChild<QListView*>(QString(), Qt::FindDirectChildrenOnly);
}

FileBrowserWidget* makeBrowser(Root root)
{
    auto* browser = new FileBrowserWidget;
    browser->setFixedSize(browserSize);
    browser->setAllowedDirs({fileTree().device(), fileTree().stick()});
    auto* combo = browser->findChild<QComboBox*>();
    combo->setCurrentIndex(root);
    // The files lie in a temporary directory, whose name would be another one in each picture.
    combo->setItemText(Device, QStringLiteral("/data"));
    combo->setItemText(Stick, QStringLiteral("/media/usb"));
    waitForFiles(*tileView(*browser));
    return browser;
}

FileBrowserWidget* makeDevice()
{
    return makeBrowser(Device);
}

/// Selects the entry \a name, which opens a directory.
FileBrowserWidget* makeSelection(const QString& name)
{
    FileBrowserWidget* browser = makeDevice();
    QListView* view = tileView(*browser);
    const auto* model = qobject_cast<QFileSystemModel*>(view->model());
    view->setCurrentIndex(model->index(fileTree().device() + QLatin1Char('/') + name));
    waitForFiles(*view);
    return browser;
}

QWidget* makeListView()
{
    FileBrowserWidget* browser = makeBrowser(Stick);
    browser->findChildren<QPushButton*>(QStringLiteral("toolbarButton")).constLast()->click();
    return browser;
}

QWidget* makeFiltered()
{
    FileBrowserWidget* browser = makeDevice();
    browser->setFilters({QStringLiteral("*.txt"), QStringLiteral("*.csv")});
    return browser;
}

QWidget* makeDisabled()
{
    FileBrowserWidget* browser = makeDevice();
    browser->setEnabled(false);
    return browser;
}

template <typename Model>
QWidget* makeTree()
{
    auto* view = new QTreeView;
    view->setFixedSize(treeSize);
    view->setRootIsDecorated(false);
    auto* model = new Model(view);
    view->setModel(model);
    view->setRootIndex(model->setRootPath(fileTree().stick()));
    waitForFiles(*view);
    for (int column = 0; column < model->columnCount(); ++column)
        view->resizeColumnToContents(column);
    return view;
}

} // namespace

ClassSheet FileSheets::fileBrowser()
{
    return {
        QStringLiteral("FileBrowserWidget"),
        2,
        {
            {tr("Tile view"), makeDevice},
            {tr("List view"), makeListView},
            {tr("A file is selected"), [] { return makeSelection(QStringLiteral("journal.txt")); }},
            {tr("A directory has been opened"),
             [] { return makeSelection(QStringLiteral("Music")); }},
            {tr("Texts and tables only"), makeFiltered},
            {tr("Disabled"), makeDisabled},
            {tr("Right to left"), makeDevice, ClassState::Light, Qt::RightToLeft},
            {tr("Dark palette"), makeDevice, ClassState::Dark},
        }};
}

ClassSheet FileSheets::fileSystemModel()
{
    return {QStringLiteral("FileSystemModel"),
            1,
            {
                {tr("This model in a QTreeView"), makeTree<ui::FileSystemModel>},
                {tr("QFileSystemModel, for comparison"), makeTree<QFileSystemModel>},
            }};
}
