#include "ui/FileBrowserWidget.h"

#include "BreadCrumbsWidget.h"
#include "SelectionHandler.h"
#include "SelectionSnapshot.h"
#include "ui/FileSystemModel.h"

#include <platform/ui/style/StyleManager.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QSharedPointer>
#include <QTreeView>
#include <QVBoxLayout>

using platform::ui::style::Fonts;
using platform::ui::style::StyleManager;

namespace ui {

namespace {

constexpr int maxSectionSize = 350; // pixels; leaves room for the date beside a long name

void useFileBrowserFont(QWidget* widget)
{
    widget->setFont(StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser));
}

QPushButton* newToolbarButton(const QString& icon, QWidget* parent)
{
    auto* button = new QPushButton(QIcon(icon), QString(), parent);
    button->setObjectName(QStringLiteral("toolbarButton"));
    return button;
}

void setUpHeader(QHeaderView* header)
{
    header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    header->setSectionHidden(2, true);
    header->setSectionResizeMode(3, QHeaderView::Stretch);
    header->setMaximumSectionSize(maxSectionSize);
}

/**
 * Lays out what a visible widget holds once it goes, and not before.
 *
 * While one view is shown and the other not hidden yet, the layout would give each half of the
 * height, and the tiles of all files would be arranged at that height, only to be arranged anew.
 */
class LayoutPause
{
public:
    explicit LayoutPause(const QWidget& widget)
    {
        QLayout* layout = widget.layout();
        if (!widget.isVisible() || !layout || !layout->isEnabled() || growsForBoth(widget))
            return;
        m_layout = layout;
        m_layout->setEnabled(false);
    }

    ~LayoutPause()
    {
        if (!m_layout)
            return;
        m_layout->setEnabled(true);
        m_layout->activate();
    }

    Q_DISABLE_COPY(LayoutPause)

private:
    /// Whether \a widget may be too low for both views: it or its window grows then, and stays so.
    static bool growsForBoth(const QWidget& widget)
    {
        // mutant [< -> <=]: What has just the height for both does not grow.
        return widget.height() < 2 * widget.layout()->totalMinimumSize().height();
    }

    QPointer<QLayout> m_layout;
};

} // namespace

FileBrowserWidget::FileBrowserWidget(QWidget* parent)
    : QWidget(parent)
    , m_model(new FileSystemModel)
    , m_breadCrumbs(nullptr)
    , m_rootCombo(new QComboBox(this))
    , m_tileView(new QListView(this))
    , m_listView(new QTreeView(this))
    , m_selectionMode(SingleSelection)
{
    setObjectName(QStringLiteral("FileBrowser"));
    connect(m_model, &QObject::destroyed, this, [this] { m_model = nullptr; });
    m_model->setFilter(QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
    // mutant [order]: The fonts do not depend on the model.
    m_model->setRootPath(QStringLiteral("~")); // a name like any other, not the home directory
    useFileBrowserFont(m_rootCombo);
    useFileBrowserFont(m_tileView);
    useFileBrowserFont(m_listView);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createNavBar());
    layout->addLayout(createFileView());
}

FileBrowserWidget::~FileBrowserWidget()
{
    delete m_model;
    // The base class deletes the children, at a time when they must not report here any more.
    for (const QObject* child : children())
        // mutant [dropped]: Keeps children that die with the browser from calling a part of it that
        // is dead already: no test sees that.
        child->disconnect(this);
}

QHBoxLayout* FileBrowserWidget::createNavBar()
{
    auto* layout = new QHBoxLayout;
    layout->setAlignment(Qt::AlignTop);

    m_rootCombo->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout->addWidget(m_rootCombo);
    // mutant [order]: The combo box reports nothing before the bar exists.
    connect(m_rootCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &FileBrowserWidget::changeRoot);

    m_breadCrumbs = new BreadCrumbsWidget(this);
    connect(m_breadCrumbs, &BreadCrumbsWidget::dirChanged, this, &FileBrowserWidget::openDirectory);
    connect(m_breadCrumbs, &QObject::destroyed, this, [this] { m_breadCrumbs = nullptr; });
    layout->addWidget(m_breadCrumbs, 1);
    layout->addStretch(0);

    auto* tileButton = newToolbarButton(QStringLiteral(":/icons/tile_view.svg"), this);
    connect(tileButton, &QPushButton::clicked, this, [this] {
        const LayoutPause pause(*this);
        const QPointer<FileBrowserWidget> guard(this);
        m_tileView->show();
        if (guard) // a slot may have deleted it
            m_listView->hide();
    });
    layout->addWidget(tileButton);

    auto* listButton = newToolbarButton(QStringLiteral(":/icons/list_view.svg"), this);
    connect(listButton, &QPushButton::clicked, this, [this] {
        const LayoutPause pause(*this);
        const QPointer<FileBrowserWidget> guard(this);
        m_tileView->hide();
        if (guard)
            m_listView->show();
    });
    layout->addWidget(listButton);
    return layout;
}

QVBoxLayout* FileBrowserWidget::createFileView()
{
    auto* layout = new QVBoxLayout;
    const auto handler = QSharedPointer<SelectionHandler>::create(
        this, m_model, m_tileView, &FileBrowserWidget::openDirectory);

    m_tileView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tileView->setWrapping(true);
    m_tileView->setResizeMode(QListView::Adjust);
    m_tileView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // mutant [dropped]: The default of Qt's views, spelt out.
    m_tileView->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_tileView->setModel(m_model);
    m_tileView->setRootIndex(m_model->index(m_model->rootPath()));
    connect(m_tileView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [handler] { handler->run(); });
    layout->addWidget(m_tileView);

    m_listView->setModel(m_model);
    m_listView->setRootIndex(m_model->index(m_model->rootPath()));
    // mutant [dropped]: The default of QTreeView, spelt out.
    m_listView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_listView->setRootIsDecorated(false);
    m_listView->setItemsExpandable(false);
    m_listView->setSortingEnabled(true);
    m_listView->header()->setSortIndicator(0, Qt::AscendingOrder);
    m_listView->setTextElideMode(Qt::ElideMiddle);
    m_listView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // mutant [dropped]: The default of Qt's views, spelt out.
    m_listView->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_listView->setUniformRowHeights(true);
    setUpHeader(m_listView->header());
    // The same handler: it reads the tile view, whichever view reports a change.
    connect(m_listView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [handler] { handler->run(); });
    // mutant [order]: A layout takes a hidden view in like another.
    layout->addWidget(m_listView);
    m_listView->hide();
    return layout;
}

void FileBrowserWidget::setAllowedDirs(QStringList const& dirs)
{
    m_rootCombo->clear();
    for (const QString& dir : dirs) {
        if (QDir(dir).exists())
            m_rootCombo->addItem(style()->standardIcon(QStyle::SP_DriveNetIcon), dir);
    }
}

void FileBrowserWidget::setFilters(QStringList const& filters)
{
    if (!m_model)
        return;
    m_model->setNameFilters(filters);
    m_model->setNameFilterDisables(false);
}

QString FileBrowserWidget::currentPath() const
{
    return m_model ? m_model->rootPath() : QString();
}

void FileBrowserWidget::setSelectionMode(ui::FileBrowserWidget::SelectionMode mode)
{
    // mutant [dropped]: The member is part of the class's layout, but nothing reads it.
    m_selectionMode = mode;
    const auto setViewMode = [this](QAbstractItemView::SelectionMode viewMode) {
        m_tileView->setSelectionMode(viewMode);
        m_listView->setSelectionMode(viewMode);
    };
    switch (mode) {
    case NoSelection:
        setViewMode(QAbstractItemView::NoSelection);
        break;
    case SingleSelection:
        setViewMode(QAbstractItemView::SingleSelection);
        break;
    case MultiSelection:
        setViewMode(QAbstractItemView::ExtendedSelection);
        // mutant [dropped]: Ends the last case of its switch; the other two are noticed.
        break;
    }
}

ui::FileBrowserWidget::SelectionMode FileBrowserWidget::selectionMode() const
{
    switch (m_tileView->selectionMode()) {
    case QAbstractItemView::SingleSelection:
        return SingleSelection;
    case QAbstractItemView::ExtendedSelection:
        return MultiSelection;
    default:
        return NoSelection;
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void FileBrowserWidget::setRootPath(QString path)
{
    if (!m_model)
        return;
    m_model->setRootPath(path);
    const QModelIndex root = m_model->index(m_model->rootPath());
    m_tileView->setRootIndex(root);
    m_listView->setRootIndex(root);
}

QStringList FileBrowserWidget::selectedFiles() const
{
    const QAbstractItemView* view = m_listView;
    if (m_tileView->isVisible())
        view = m_tileView;

    QStringList files;
    const QModelIndexList rows = SelectionSnapshot(view->selectionModel(), m_model).rows();
    for (const QModelIndex& row : rows)
        files.append(m_model->filePath(row));
    return files;
}

/// Shows the allowed directory at \a index of the combo box, in the path bar too.
void FileBrowserWidget::changeRoot(int index)
{
    const QString path = m_rootCombo->itemText(index);
    setRootPath(path);
    if (!m_breadCrumbs)
        return;
    // mutant [order]: Both lead to the same row: none, as the directory is the root.
    m_breadCrumbs->setRootPath(path);
    // mutant [dropped]: A new root is the bar's current directory already; spelt out.
    m_breadCrumbs->changeDir(path);
}

/// Shows the directory \a path, in the path bar too.
void FileBrowserWidget::openDirectory(const QString& path)
{
    setRootPath(path);
    if (m_breadCrumbs)
        m_breadCrumbs->changeDir(path);
}

} // namespace ui
