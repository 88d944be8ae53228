#include "scenes/BrowserScene.h"

#include "Journal.h"
#include "scenes/SampleFiles.h"

#include <ui/FileBrowserWidget.h>

#include <QFileInfo>
#include <QPushButton>
#include <QVBoxLayout>

using ui::FileBrowserWidget;

BrowserScene::BrowserScene(Journal& journal)
{
    auto* browser = new FileBrowserWidget;
    browser->setAllowedDirs(makeSampleFiles());
    const auto buttons = browser->findChildren<QPushButton*>(QStringLiteral("toolbarButton"));
    buttons.first()->setAccessibleName(QStringLiteral("tiles"));
    buttons.last()->setAccessibleName(QStringLiteral("list"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(browser);
    connect(browser, &FileBrowserWidget::selectionChanged, this,
            [&journal] { journal.record(QStringLiteral("selection changed")); });
}

QString BrowserScene::path() const
{
    return findChild<FileBrowserWidget*>()->currentPath();
}

QStringList BrowserScene::selected() const
{
    QStringList names;
    const QStringList files = findChild<FileBrowserWidget*>()->selectedFiles();
    for (const QString& file : files)
        names.append(QFileInfo(file).fileName());
    names.sort();
    return names;
}

void BrowserScene::selectSeveral()
{
    findChild<FileBrowserWidget*>()->setSelectionMode(FileBrowserWidget::MultiSelection);
}
