#include "RecursiveBrowser.h"

#include "BreadCrumbsWidget.h"
#include "ui/FileSystemModel.h"

#include <platform/ui/style/StyleManager.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using platform::ui::style::Fonts;
using platform::ui::style::StyleManager;

namespace test {

RecursiveBrowser::RecursiveBrowser(QWidget* parent)
    : QWidget(parent)
    , m_model(new ui::FileSystemModel)
    , m_rootCombo(new QComboBox(this))
    , m_tileView(new QListView(this))
    , m_listView(new QTreeView(this))
{
    setObjectName(QStringLiteral("FileBrowser"));
    m_model->setFilter(QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
    m_model->setRootPath(QStringLiteral("~"));
    m_rootCombo->setFont(StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser));
    m_tileView->setFont(StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser));
    m_listView->setFont(StyleManager::getInstance()->getStyleFont(Fonts::FileBrowser));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createNavBar());
    layout->addLayout(createFileView());
}

RecursiveBrowser::~RecursiveBrowser()
{
    delete m_model;
}

QHBoxLayout* RecursiveBrowser::createNavBar()
{
    auto* layout = new QHBoxLayout;
    layout->setAlignment(Qt::AlignTop);
    m_rootCombo->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout->addWidget(m_rootCombo);
    connect(m_rootCombo, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        const QString path = m_rootCombo->itemText(index);
        setRootPath(path);
        m_breadCrumbs->setRootPath(path);
        m_breadCrumbs->changeDir(path);
    });
    m_breadCrumbs = new BreadCrumbsWidget(this);
    connect(m_breadCrumbs, &BreadCrumbsWidget::dirChanged, this, &RecursiveBrowser::openDirectory);
    layout->addWidget(m_breadCrumbs, 1);
    layout->addStretch(0);

    QPushButton* tileButton = newToolbarButton(QStringLiteral(":/icons/tile_view.svg"));
    connect(tileButton, &QPushButton::clicked, this, [this] {
        m_tileView->show();
        m_listView->hide();
    });
    layout->addWidget(tileButton);
    QPushButton* listButton = newToolbarButton(QStringLiteral(":/icons/list_view.svg"));
    connect(listButton, &QPushButton::clicked, this, [this] {
        m_tileView->hide();
        m_listView->show();
    });
    layout->addWidget(listButton);
    return layout;
}

QPushButton* RecursiveBrowser::newToolbarButton(const QString& icon)
{
    auto* button = new QPushButton(QIcon(icon), QString(), this);
    button->setObjectName(QStringLiteral("toolbarButton"));
    return button;
}

QVBoxLayout* RecursiveBrowser::createFileView()
{
    auto* layout = new QVBoxLayout;
    m_tileView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tileView->setWrapping(true);
    m_tileView->setResizeMode(QListView::Adjust);
    m_tileView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tileView->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_tileView->setModel(m_model);
    m_tileView->setRootIndex(m_model->index(m_model->rootPath()));
    connect(m_tileView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RecursiveBrowser::handleSelection);
    layout->addWidget(m_tileView);

    m_listView->setModel(m_model);
    m_listView->setRootIndex(m_model->index(m_model->rootPath()));
    m_listView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_listView->setRootIsDecorated(false);
    m_listView->setItemsExpandable(false);
    m_listView->setSortingEnabled(true);
    m_listView->header()->setSortIndicator(0, Qt::AscendingOrder);
    m_listView->setTextElideMode(Qt::ElideMiddle);
    m_listView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_listView->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_listView->setUniformRowHeights(true);
    m_listView->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_listView->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_listView->header()->setSectionHidden(2, true);
    m_listView->header()->setSectionResizeMode(3, QHeaderView::Stretch);
    m_listView->header()->setMaximumSectionSize(350);
    connect(m_listView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RecursiveBrowser::handleSelection);
    layout->addWidget(m_listView);
    m_listView->hide();
    return layout;
}

void RecursiveBrowser::setAllowedDirs(const QStringList& dirs)
{
    m_rootCombo->clear();
    for (const QString& dir : dirs) {
        if (QDir(dir).exists())
            m_rootCombo->addItem(style()->standardIcon(QStyle::SP_DriveNetIcon), dir);
    }
}

void RecursiveBrowser::setRootPath(const QString& path)
{
    m_model->setRootPath(path);
    m_tileView->setRootIndex(m_model->index(m_model->rootPath()));
    m_listView->setRootIndex(m_model->index(m_model->rootPath()));
}

QString RecursiveBrowser::currentPath() const
{
    return m_model->rootPath();
}

QStringList RecursiveBrowser::selectedFiles() const
{
    const QAbstractItemView* view = m_listView;
    if (m_tileView->isVisible())
        view = m_tileView;
    QStringList files;
    const QModelIndexList rows = view->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        files.append(m_model->filePath(row));
    return files;
}

void RecursiveBrowser::openDirectory(const QString& path)
{
    setRootPath(path);
    m_breadCrumbs->changeDir(path);
}

void RecursiveBrowser::handleSelection()
{
    QItemSelectionModel* selectionModel = m_tileView->selectionModel();
    const QModelIndexList rows = selectionModel->selectedRows();
    if (rows.size() == 1 && m_model->isDir(rows.first())) {
        const QString path = m_model->filePath(rows.first());
        if (!path.isEmpty())
            openDirectory(path);
    } else {
        for (const QModelIndex& row : rows) {
            if (m_model->isDir(row))
                selectionModel->select(row, QItemSelectionModel::Deselect);
        }
    }
    Q_EMIT selectionChanged();
}

} // namespace test
