#include "FileBrowserPage.h"

#include "Directories.h"
#include "Touch.h"

#include <ui/FileBrowserWidget.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QLabel>

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

QStringList roots()
{
    const QStringList named = galleryDirectories();
    return named.isEmpty() ? rootsByDefault() : named;
}

QStringList fileNames(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths)
        names.append(QFileInfo(path).fileName());
    return names;
}

} // namespace

FileBrowserPage::FileBrowserPage(QWidget* parent)
    : GalleryPage(parent)
    , m_browser(new FileBrowserWidget)
    , m_selection(new QLabel)
{
    m_selection->setObjectName(QStringLiteral("selection"));
    m_selection->setTextFormat(Qt::PlainText); // file names are not markup
    m_selection->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto* choices = new QHBoxLayout;
    choices->addWidget(makeFilters());
    choices->addWidget(makeModes());

    auto* column = new QVBoxLayout(this);
    column->addWidget(m_browser, 1);
    column->addWidget(m_selection);
    column->addLayout(choices);

    connect(m_browser, &FileBrowserWidget::selectionChanged, this, &FileBrowserPage::showSelection);
    m_browser->setAllowedDirs(roots());
    showSelection();
    addExhibit(m_browser, tr("File browser"));
}

QComboBox* FileBrowserPage::makeFilters()
{
    QComboBox* filters = touch::makeComboBox();
    filters->setObjectName(QStringLiteral("filters"));
    filters->addItem(tr("All files"), QStringList());
    filters->addItem(tr("Texts"), QStringList{"*.txt", "*.md", "*.csv"});
    filters->addItem(tr("Pictures"), QStringList{"*.png", "*.jpg", "*.svg"});
    connect(filters, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this, filters] { m_browser->setFilters(filters->currentData().toStringList()); });
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
    connect(modes, qOverload<int>(&QComboBox::currentIndexChanged), this, [this, modes] {
        m_browser->setSelectionMode(FileBrowserWidget::SelectionMode(modes->currentData().toInt()));
    });
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
