#include "BrowserParts.h"
#include "ChangingTree.h"
#include "NewMachines.h"

#include <BreadCrumbsWidget.h>
#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>

#include <QComboBox>
#include <QDir>
#include <QListView>
#include <QPushButton>
#include <QSet>
#include <QTreeView>

using ui::FileBrowserWidget;

namespace soak {

namespace {

/// Where a browser is, on a tree that changes under it.
class BrowserMachine : public WidgetMachine
{
public:
    explicit BrowserMachine(const std::shared_ptr<Stage>& stage);

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
    void setAllowedDirs(Values& values);
    void setFilters(Values& values);
    void setSelectionMode(Values& values);
    void select(Values& values);

    ChangingTree m_tree;
    QString m_path;
    FileBrowserWidget::SelectionMode m_mode = FileBrowserWidget::SingleSelection;
};

BrowserMachine::BrowserMachine(const std::shared_ptr<Stage>& stage)
    : WidgetMachine(stage)
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
    add("chooseRoot", 2, [this](Values& v) {
        const test::BrowserParts parts(browser());
        parts.combo->setCurrentIndex(v.below(parts.combo->count() + 1) - 1);
    });
    add("switchView", 2, [this](Values& v) {
        const test::BrowserParts parts(browser());
        (v.boolean() ? parts.tileButton : parts.listButton)->click();
    });
    add("pickCrumb", 2, [this](Values&) {
        const test::BrowserParts parts(browser());
        if (!test::crumbs(*parts.bar).isEmpty())
            Q_EMIT parts.bar->dirChanged(test::lastCrumbPath(*parts.bar));
    });
    addAllUses(*this);
}

/// The model says of a filter that is no pattern what it is.
bool BrowserMachine::expectsWarning(const QString& warning) const
{
    return warning.contains(QLatin1String("invalid QRegularExpression"))
        || WidgetMachine::expectsWarning(warning);
}

QWidget* BrowserMachine::create()
{
    auto* created = new FileBrowserWidget;
    const test::BrowserParts parts(*created);
    m_path = created->currentPath();
    m_mode = FileBrowserWidget::SingleSelection;
    QObject::connect(parts.model, &QFileSystemModel::rootPathChanged, created,
                     [this](const QString& path) { m_path = path; });
    return created;
}

void BrowserMachine::setRootPath(const QString& path)
{
    const QString before = browser().currentPath();
    browser().setRootPath(path);
    if (QDir(path).exists() && QDir::isAbsolutePath(path))
        compare("current path", browser().currentPath(), QDir::cleanPath(path));
    else if (!path.isEmpty() && !QDir(path).exists())
        compare("unchanged path", browser().currentPath(), before);
}

void BrowserMachine::setAllowedDirs(Values& values)
{
    QStringList dirs;
    QStringList existing;
    for (int left = values.below(4); left > 0; --left) {
        dirs.append(m_tree.path(values));
        if (QDir(dirs.last()).exists())
            existing.append(dirs.last());
    }
    browser().setAllowedDirs(dirs);
    const test::BrowserParts parts(browser());
    QStringList offered;
    for (int i = 0; i < parts.combo->count(); ++i)
        offered.append(parts.combo->itemText(i));
    compare("allowed directories", offered, existing);
    if (!existing.isEmpty())
        compare("first allowed directory", browser().currentPath(), existing.first());
}

void BrowserMachine::setFilters(Values& values)
{
    const QString some = QLatin1Char('*') + values.name() + QLatin1Char('*');
    browser().setFilters(values.oneOf<QStringList>(
        {{}, {QStringLiteral("*.txt")}, {QStringLiteral("["), QStringLiteral("*")}, {some}}));
}

void BrowserMachine::setSelectionMode(Values& values)
{
    const int mode = values.below(8) == 0 ? values.integer() : values.below(3);
    if (mode >= 0 && mode <= 2)
        m_mode = FileBrowserWidget::SelectionMode(mode);
    browser().setSelectionMode(FileBrowserWidget::SelectionMode(mode));
}

void BrowserMachine::select(Values& values)
{
    const test::BrowserParts parts(browser());
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

void BrowserMachine::checkState()
{
    compare("current path", browser().currentPath(), m_path);
    compare("selection mode", browser().selectionMode(), m_mode);
    const test::BrowserParts parts(browser());
    compare("views", parts.tileView->rootIndex(), parts.listView->rootIndex());
    const QStringList selected = browser().selectedFiles();
    expect(!selected.contains(QString()), "what is selected has a path");
    compare("selected once", QSet<QString>(selected.begin(), selected.end()).size(),
            selected.size());
}

} // namespace

std::unique_ptr<WidgetMachine> newBrowserMachine(const std::shared_ptr<Stage>& stage)
{
    return std::make_unique<BrowserMachine>(stage);
}

} // namespace soak
