#include "StateGalleries.h"

#include "Appearance.h"
#include "FileTree.h"
#include "Rendering.h"

#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

using ui::FileBrowserWidget;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FileGalleries)
};

constexpr QSize browserSize(490, 230);
constexpr QSize treeSize(600, 130);

enum Root { Device, Stick };

const FileTree& fileTree()
{
    static const FileTree tree;
    return tree;
}

void waitForFiles(const QAbstractItemView& view)
{
    rendering::waitUntil([&view] { return view.model()->rowCount(view.rootIndex()) > 0; });
}

QListView* tileView(const FileBrowserWidget& browser)
{
    return browser.findChild<QListView*>(QString(), Qt::FindDirectChildrenOnly);
}

FileBrowserWidget* makeBrowser(Root root)
{
    auto* browser = new FileBrowserWidget;
    browser->setFixedSize(browserSize);
    Appearance::keepIconButtonsLight(*browser);
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

StateGallery stategalleries::fileBrowser()
{
    return {QStringLiteral("FileBrowserWidget"),
            2,
            {
                {Texts::tr("Tile view"), makeDevice},
                {Texts::tr("List view"), makeListView},
                {Texts::tr("A file is selected"),
                 [] { return makeSelection(QStringLiteral("journal.txt")); }},
                {Texts::tr("A directory has been opened"),
                 [] { return makeSelection(QStringLiteral("Music")); }},
                {Texts::tr("Texts and tables only"), makeFiltered},
                {Texts::tr("Disabled"), makeDisabled},
                {Texts::tr("Right to left"), makeDevice, ClassState::Light, Qt::RightToLeft},
                {Texts::tr("Dark palette"), makeDevice, ClassState::Dark},
            }};
}

StateGallery stategalleries::fileSystemModel()
{
    return {QStringLiteral("FileSystemModel"),
            1,
            {
                {Texts::tr("This model in a QTreeView"), makeTree<ui::FileSystemModel>},
                {Texts::tr("QFileSystemModel, for comparison"), makeTree<QFileSystemModel>},
            }};
}
