#include "ClassPictures.h"

#include "Appearance.h"
#include "Screenshots.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

using ui::FileBrowserWidget;

namespace {

/// A few files and directories, the same everywhere but for the path, for as long as it lives.
class FileTree
{
public:
    FileTree();

    /// A directory with directories in it.
    QString device() const;
    /// A directory of files only.
    QString stick() const;

private:
    void addFile(const QString& name, int size, int day) const;

    QTemporaryDir m_directory;
};

QDateTime dateInMarch(int day)
{
    return {QDate(2024, 3, day), QTime(9, 30)};
}

FileTree::FileTree()
{
    const QDir root(m_directory.path());
    for (const char* name : {"device/Music/Live", "device/Pictures", "stick"})
        root.mkpath(QString::fromLatin1(name));
    addFile(QStringLiteral("device/cover.jpg"), 48200, 4);
    addFile(QStringLiteral("device/journal.txt"), 1830, 11);
    addFile(QStringLiteral("device/values.csv"), 7400, 17);
    addFile(QStringLiteral("device/Music/encore.ogg"), 2840000, 2);
    addFile(QStringLiteral("device/Music/opening.ogg"), 3150000, 2);
    addFile(QStringLiteral("stick/backup.zip"), 81300000, 8);
    addFile(QStringLiteral("stick/journal.txt"), 1830, 11);
    addFile(QStringLiteral("stick/values.csv"), 7400, 17);
}

QString FileTree::device() const
{
    return m_directory.filePath(QStringLiteral("device"));
}

QString FileTree::stick() const
{
    return m_directory.filePath(QStringLiteral("stick"));
}

void FileTree::addFile(const QString& name, int size, int day) const
{
    QFile file(m_directory.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.resize(size);
    file.setFileTime(dateInMarch(day), QFileDevice::FileModificationTime);
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FileGalleries)
};

const QString shortPath = QStringLiteral("music/live");
constexpr int barWidth = 400;
constexpr QSize crumbSize(150, 44);

void show(BreadCrumbsWidget* bar, const QString& path)
{
    bar->setFixedWidth(barWidth);
    bar->setRootPath(QStringLiteral("/data"));
    bar->changeDir(QStringLiteral("/data/") + path);
}

QWidget* makePlainBar(const QString& path, bool enabled)
{
    auto* bar = new BreadCrumbsWidget;
    show(bar, path);
    bar->setEnabled(enabled);
    return bar;
}

auto plainBar(const QString& path, bool enabled = true)
{
    return [path, enabled] { return makePlainBar(path, enabled); };
}

/// As an application for fingers has it.
BreadCrumbsWidget* makeBar(const QString& path)
{
    auto* bar = new BreadCrumbsWidget;
    bar->setStyleSheet(QStringLiteral("QLabel { min-height: 44px; font-size: 18px; }"
                                      "#breadcrumb { color: #1a82b4; }"));
    show(bar, path);
    return bar;
}

auto bar(const QString& path)
{
    return [path] { return makeBar(path); };
}

QWidget* makeDisabledBar()
{
    QWidget* bar = makeBar(shortPath);
    bar->setStyleSheet(bar->styleSheet()
                       + QStringLiteral("#breadcrumb:disabled { color: #9aa7ae; }"));
    bar->setEnabled(false);
    return bar;
}

QWidget* makeLabel(const QString& text)
{
    auto* label = new ClickableLabel;
    label->setText(text);
    label->setFixedSize(crumbSize); // high enough for the whole text
    return label;
}

QWidget* makeDisabledLabel(const QString& text)
{
    QWidget* label = makeLabel(text);
    label->setEnabled(false);
    return label;
}

} // namespace

StateGallery stategalleries::breadCrumbs()
{
    const QString deepPath = QStringLiteral("music/live/2024/Berlin/encores");
    const QString longName = QStringLiteral("music/A rather long name of a directory");
    return {QStringLiteral("BreadCrumbsWidget"),
            2,
            {
                {Texts::tr("Two components below the root"), bar(shortPath)},
                {Texts::tr("More than three: the others are in a menu"), bar(deepPath)},
                {Texts::tr("A long name"), bar(longName)},
                {Texts::tr("Right to left"), bar(shortPath), ClassState::Light, Qt::RightToLeft},
                {Texts::tr("Disabled"), makeDisabledBar},
                {Texts::tr("Without a style sheet"), plainBar(shortPath)},
                {Texts::tr("Dark palette"), plainBar(deepPath), ClassState::Dark},
                {Texts::tr("Dark, disabled"), plainBar(deepPath, false), ClassState::Dark},
            }};
}

StateGallery stategalleries::clickableLabel()
{
    const QString text = Texts::tr("Music");
    const QString longText = Texts::tr("A rather long name of a directory");
    return {QStringLiteral("ClickableLabel"),
            4,
            {
                {Texts::tr("A text with room enough"), [text] { return makeLabel(text); }},
                {Texts::tr("A text too long"), [longText] { return makeLabel(longText); }},
                {Texts::tr("Disabled"), [text] { return makeDisabledLabel(text); }},
                {Texts::tr("Dark palette"), [text] { return makeLabel(text); }, ClassState::Dark},
            }};
}

namespace {

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
