#include "Appearance.h"
#include "GalleryPage.h"
#include "Pages.h"
#include "properties/HiddenValues.h"
#include "Touch.h"

#include <ui/FileBrowserWidget.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QListView>

using ui::FileBrowserWidget;

namespace {

/// As many names as a line has room for.
constexpr int shownNames = 3;

/// First the one in which there is something to be seen.
QStringList rootsByDefault()
{
    if (QDir::home().isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot))
        return {QDir::rootPath(), QDir::homePath()};
    return {QDir::homePath(), QDir::rootPath()};
}

QStringList fileNames(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths)
        names.append(QFileInfo(path).fileName());
    return names;
}

/**
 * The file browser on the real file system: in the directories named on the command line, or the
 * user's own and the top of the file system.
 */
class FileBrowserPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(FileBrowserPage)

public:
    FileBrowserPage(QWidget* parent, const QStringList& directories);

    bool isReady() const override;

private:
    QComboBox* makeFilters();
    QComboBox* makeModes();
    void showSelection();

    ui::FileBrowserWidget* m_browser;
    QLabel* m_selection;
    bool m_isLoaded = false; ///< The first directory has been read.
    bool m_isSorted = true; ///< The model sorts what it has read a little later.
};

FileBrowserPage::FileBrowserPage(QWidget* parent, const QStringList& directories)
    : GalleryPage(parent)
    , m_browser(new FileBrowserWidget)
    , m_selection(touch::makeElidedLabel())
{
    m_selection->setObjectName(QStringLiteral("selection"));

    auto* choices = new QHBoxLayout;
    choices->addWidget(makeFilters());
    choices->addWidget(makeModes());

    auto* column = new QVBoxLayout(this);
    column->addWidget(m_browser, 1);
    column->addWidget(m_selection);
    column->addLayout(choices);

    connect(m_browser, &FileBrowserWidget::selectionChanged, this, &FileBrowserPage::showSelection);
    const auto* view = m_browser->findChild<QListView*>(QString(), Qt::FindDirectChildrenOnly);
    const auto* model = qobject_cast<QFileSystemModel*>(view->model());
    connect(model, &QFileSystemModel::directoryLoaded, this, [this] { m_isLoaded = true; });
    connect(model, &QFileSystemModel::rowsInserted, this, [this] { m_isSorted = false; });
    connect(model, &QFileSystemModel::layoutChanged, this, [this] { m_isSorted = true; });
    hiddenvalues::set(m_browser, "allowedDirs",
                      directories.isEmpty() ? rootsByDefault() : directories);
    Appearance::keepIconButtonsLight(*m_browser);

    // Its views are to be dragged like everything else here.
    const QList<QAbstractItemView*> views =
        m_browser->findChildren<QAbstractItemView*>(QString(), Qt::FindDirectChildrenOnly);
    for (QAbstractItemView* scrolled : views)
        touch::makeScrollable(scrolled);
    showSelection();
    addDemoWidget(m_browser, tr("File browser"));
}

bool FileBrowserPage::isReady() const
{
    return m_isLoaded && m_isSorted;
}

QComboBox* FileBrowserPage::makeFilters()
{
    QComboBox* filters = touch::makeComboBox();
    filters->setObjectName(QStringLiteral("filters"));
    filters->addItem(tr("All files"), QStringList());
    filters->addItem(tr("Texts"), QStringList{"*.txt", "*.md", "*.csv"});
    filters->addItem(tr("Pictures"), QStringList{"*.png", "*.jpg", "*.svg"});
    connect(filters, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this, filters] { hiddenvalues::set(m_browser, "filters", filters->currentData()); });
    return filters;
}

QComboBox* FileBrowserPage::makeModes()
{
    QComboBox* modes = touch::makeComboBox();
    modes->setObjectName(QStringLiteral("modes"));
    modes->addItem(tr("Select nothing"), FileBrowserWidget::NoSelection);
    modes->addItem(tr("Select one"), FileBrowserWidget::SingleSelection);
    modes->addItem(tr("Select several"), FileBrowserWidget::MultiSelection);
    modes->setCurrentIndex(modes->findData(m_browser->selectionMode()));
    connect(modes, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this, modes] { hiddenvalues::set(m_browser, "selectionMode", modes->currentData()); });
    return modes;
}

void FileBrowserPage::showSelection()
{
    const QStringList files = m_browser->selectedFiles();
    if (files.isEmpty()) {
        m_selection->setText(tr("Nothing is selected"));
        return;
    }
    QString names = fileNames(files.mid(0, shownNames)).join(QStringLiteral(", "));
    if (files.size() > shownNames)
        names = tr("%1 and %2 more").arg(names).arg(files.size() - shownNames);
    m_selection->setText(tr("Selected: %1").arg(names));
}

} // namespace

GalleryPage* makeFileBrowserPage(QWidget* parent, const QStringList& directories)
{
    return new FileBrowserPage(parent, directories);
}
