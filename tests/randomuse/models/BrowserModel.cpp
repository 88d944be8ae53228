#include "BrowserParts.h"
#include "Models.h"
#include "Tree.h"

#include <BreadCrumbsWidget.h>
#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QSet>
#include <QTreeView>

using ui::FileBrowserWidget;

namespace test {

namespace {

constexpr int qtPrecision = 1000; // rows that a header measures by default

void setReadable(const QString& path, bool readable)
{
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions(path, readable ? owner : QFile::Permissions());
}

void remove(const QString& path)
{
    if (QFileInfo(path).isDir() && !QFileInfo(path).isSymLink())
        QDir(path).removeRecursively();
    else
        QFile::remove(path);
}

/// A small tree of directories and files that come, go and become unreadable.
class ChangingTree
{
public:
    ChangingTree();
    /// Gives back the permissions, so that the tree can be removed.
    ~ChangingTree();

    /// Of some place in the tree, whether there is anything or not.
    QString path(Values& values) const;
    void change(Values& values);

private:
    static QString place(Values& values);

    Tree m_tree;
};

ChangingTree::ChangingTree()
{
    m_tree.makeDir(QStringLiteral("a/b/c/a/b"));
    m_tree.makeDir(QStringLiteral("b"));
    m_tree.makeFile(QStringLiteral("a/b/c/b.txt"));
    m_tree.makeFile(QStringLiteral("c.txt"));
}

ChangingTree::~ChangingTree()
{
    QDirIterator entries(m_tree.path(), QDir::AllDirs | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        setReadable(entries.next(), true);
}

QString ChangingTree::place(Values& values)
{
    QString result;
    for (int depth = 1 + values.below(4); depth > 0; --depth)
        result += QLatin1Char("abc"[values.below(3)]) + QStringLiteral("/");
    result.chop(1);
    return result;
}

QString ChangingTree::path(Values& values) const
{
    return values.below(6) == 0 ? m_tree.path() : m_tree.path(place(values));
}

void ChangingTree::change(Values& values)
{
    const QString relative = place(values);
    const QString parent = m_tree.path(relative.section(QLatin1Char('/'), 0, -2));
    switch (values.below(6)) {
    case 0:
    case 1:
        QDir().mkpath(m_tree.path(relative));
        break;
    case 2: {
        QFile file(m_tree.path(relative) + QStringLiteral(".txt"));
        file.open(QIODevice::WriteOnly);
        break;
    }
    case 3:
        remove(m_tree.path(relative));
        break;
    case 4:
        QFile::rename(m_tree.path(relative), parent + QStringLiteral("/c"));
        break;
    default:
        setReadable(m_tree.path(relative), values.boolean());
    }
}

/// Where a browser is, on a tree that changes under it.
class BrowserModel : public WidgetModel
{
public:
    explicit BrowserModel(const std::shared_ptr<TestWindows>& windows);

    bool expectsWarning(const QString& warning) const override;

protected:
    QWidget* create() override;
    void checkState() override;

private:
    FileBrowserWidget& browser()
    {
        return static_cast<FileBrowserWidget&>(*widget());
    }
    void setRootPath(const QString& path);
    bool isDirectory(const QString& path);
    void setAllowedDirs(Values& values);
    void setFilters(Values& values);
    void setSelectionMode(Values& values);
    void select(Values& values);
    void setPrecision(Values& values);
    void tapDirectory(Values& values);

    ChangingTree m_tree;
    QString m_path;
    FileBrowserWidget::SelectionMode m_mode = FileBrowserWidget::SingleSelection;
    int m_precision = qtPrecision; ///< Of the list view's header.
};

BrowserModel::BrowserModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    add("changeTree", 6, [this](Values& v) { m_tree.change(v); });
    add("setRootPath", 3, [this](Values& v) { setRootPath(m_tree.path(v)); });
    add("setAbsurdPath", 1, [this](Values& v) {
        setRootPath(v.oneOf({QString(), QStringLiteral("~"), QStringLiteral(".."), v.text(),
                             QString(5000, QLatin1Char('n'))}));
    });
    add("setAllowedDirs", 2, [this](Values& v) { setAllowedDirs(v); });
    add("setFilters", 2, [this](Values& v) { setFilters(v); });
    add("setSelectionMode", 2, [this](Values& v) { setSelectionMode(v); });
    add("select", 6, [this](Values& v) { select(v); });
    add("tapDirectory", 4, [this](Values& v) { tapDirectory(v); });
    add("setPrecision", 1, [this](Values& v) { setPrecision(v); });
    add("chooseRoot", 2, [this](Values& v) {
        const BrowserParts parts(browser());
        parts.combo->setCurrentIndex(v.below(parts.combo->count() + 1) - 1);
    });
    add("switchView", 2, [this](Values& v) {
        const BrowserParts parts(browser());
        (v.boolean() ? parts.tileButton : parts.listButton)->click();
    });
    add("pickCrumb", 2, [this](Values&) {
        const BrowserParts parts(browser());
        if (!crumbs(*parts.bar).isEmpty())
            Q_EMIT parts.bar->dirChanged(lastCrumbPath(*parts.bar));
    });
    addAllCommands(*this);
}

/// Qt says of a filter that is no pattern what it is. Of a directory that it may not read, which it
/// meets unless root runs the test, it says that it cannot watch it.
bool BrowserModel::expectsWarning(const QString& warning) const
{
    const bool unwatchable = warning.startsWith(QLatin1String("inotify_add_watch("))
        && warning.endsWith(QLatin1String("(Permission denied)"));
    return unwatchable || warning.contains(QLatin1String("invalid QRegularExpression"))
        || WidgetModel::expectsWarning(warning);
}

QWidget* BrowserModel::create()
{
    auto* created = new FileBrowserWidget;
    const BrowserParts parts(*created);
    m_path = created->currentPath();
    m_mode = FileBrowserWidget::SingleSelection;
    m_precision = qtPrecision;
    QObject::connect(parts.model, &QFileSystemModel::rootPathChanged, created,
                     [this](const QString& path) { m_path = path; });
    return created;
}

void BrowserModel::setRootPath(const QString& path)
{
    const QString before = browser().currentPath();
    const bool exists = isDirectory(path);
    browser().setRootPath(path);
    if (exists && QDir::isAbsolutePath(path))
        compare("current path", browser().currentPath(), QDir::cleanPath(path));
    else if (!path.isEmpty() && !exists)
        compare("unchanged path", browser().currentPath(), before);
}

bool BrowserModel::isDirectory(const QString& path)
{
    if (QT_VERSION_MAJOR
        == 6) { // Qt 6's model goes by what it remembers, until it hears of a change
        const QFileSystemModel* model = BrowserParts(browser()).model;
        const QFileInfo remembered = model->fileInfo(model->index(path));
        if (!remembered.filePath().isEmpty())
            return remembered.isDir();
    }
    return QDir(path).exists();
}

void BrowserModel::setAllowedDirs(Values& values)
{
    QStringList dirs;
    QStringList existing;
    for (int left = values.below(4); left > 0; --left) {
        dirs.append(m_tree.path(values));
        if (QDir(dirs.last()).exists())
            existing.append(dirs.last());
    }
    browser().setAllowedDirs(dirs);
    const BrowserParts parts(browser());
    QStringList offered;
    for (int i = 0; i < parts.combo->count(); ++i)
        offered.append(parts.combo->itemText(i));
    compare("allowed directories", offered, existing);
    if (!existing.isEmpty())
        compare("first allowed directory", browser().currentPath(), existing.first());
}

void BrowserModel::setFilters(Values& values)
{
    const QString some = QLatin1Char('*') + values.name() + QLatin1Char('*');
    browser().setFilters(values.oneOf<QStringList>(
        {{}, {QStringLiteral("*.txt")}, {QStringLiteral("["), QStringLiteral("*")}, {some}}));
}

void BrowserModel::setSelectionMode(Values& values)
{
    const int mode = values.below(8) == 0 ? values.integer() : values.below(3);
    if (mode >= 0 && mode <= 2)
        m_mode = FileBrowserWidget::SelectionMode(mode);
    browser().setSelectionMode(FileBrowserWidget::SelectionMode(mode));
}

void BrowserModel::select(Values& values)
{
    const BrowserParts parts(browser());
    const QAbstractItemView* view = parts.tileView;
    if (values.below(4) == 0)
        view = parts.listView;
    const int rows = view->model()->rowCount(view->rootIndex());
    if (rows == 0)
        return;
    const QModelIndex index = view->model()->index(values.below(rows), 0, view->rootIndex());
    const QString path = parts.model->filePath(index);
    const bool opens = view == parts.tileView && parts.model->isDir(index) && QDir(path).exists();
    const auto command = values.oneOf({QItemSelectionModel::ClearAndSelect,
                                       QItemSelectionModel::Select, QItemSelectionModel::Toggle});
    const bool alreadySelected = view->selectionModel()->isSelected(index);
    view->selectionModel()->select(index, command | QItemSelectionModel::Rows);
    if (opens && !alreadySelected && command == QItemSelectionModel::ClearAndSelect)
        compare("opened directory", browser().currentPath(), path);
}

void BrowserModel::setPrecision(Values& values)
{
    m_precision = values.oneOf({-1, 0, 1, qtPrecision});
    BrowserParts(browser()).listView->header()->setResizeContentsPrecision(m_precision);
}

/// Opens one directory, however the pointer trembles, where the tap reaches one.
void BrowserModel::tapDirectory(Values& values)
{
    processEvents(); // a menu that is open still gets what is meant for it
    const BrowserParts parts(browser());
    QListView* view = parts.tileView;
    const int rows = view->model()->rowCount(view->rootIndex());
    if (rows == 0 || m_mode == FileBrowserWidget::NoSelection || QApplication::activePopupWidget())
        return;
    const QModelIndex index = view->model()->index(values.below(rows), 0, view->rootIndex());
    const QString path = parts.model->filePath(index);
    view->scrollTo(index);
    const QPoint place = view->visualRect(index).center();
    QWidget* window = browser().window();
    const QPoint placeInWindow = view->viewport()->mapTo(window, place);
    if (!parts.model->isDir(index) || !QDir(path).exists() || view->indexAt(place) != index
        || !view->viewport()->isEnabled() || !view->isVisible()
        || window->childAt(placeInWindow) != view->viewport())
        return;
    view->clearSelection();
    tapTrembling(window->windowHandle(), placeInWindow);
    compare("directory opened by a tap", browser().currentPath(), path);
}

void BrowserModel::checkState()
{
    compare("current path", browser().currentPath(), m_path);
    compare("selection mode", browser().selectionMode(), m_mode);
    const BrowserParts parts(browser());
    compare("header's precision", parts.listView->header()->resizeContentsPrecision(), m_precision);
    compare("views", parts.tileView->rootIndex(), parts.listView->rootIndex());
    const QStringList selected = browser().selectedFiles();
    expect(!selected.contains(QString()), "what is selected has a path");
    compare("selected once", QSet<QString>(selected.begin(), selected.end()).size(),
            selected.size());
}

} // namespace

std::unique_ptr<WidgetModel> newBrowserModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<BrowserModel>(windows);
}

} // namespace test
