#include "scenes/BrowserScene.h"

#include "Journal.h"

#include <ui/FileBrowserWidget.h>

#include <QDirIterator>
#include <QPushButton>
#include <QVBoxLayout>

#include <fcntl.h>
#include <sys/stat.h>

using ui::FileBrowserWidget;

namespace {

const QString photos = QStringLiteral("/tmp/photos");
const QString notes = QStringLiteral("/tmp/notes");

void makeFile(const QString& path, int size)
{
    QFile file(path);
    if (QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly))
        file.write(QByteArray(size, '.'));
}

/// Files and directories are as old on every board.
void age(const QString& root)
{
    const timespec time = {1577934240, 0};
    const timespec times[] = {time, time};
    QDirIterator iterator(root, QDir::AllEntries | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext())
        utimensat(AT_FDCWD, qPrintable(iterator.next()), times, 0);
}

void makeTrees()
{
    makeFile(photos + QStringLiteral("/2019/summer/lake/boats/red/one.jpg"), 100);
    makeFile(photos + QStringLiteral("/2019/winter/snow.jpg"), 2000);
    makeFile(photos + QStringLiteral("/2020/party.jpg"), 30000);
    for (const char* name : {"bridge.jpg", "church.jpg", "market.jpg"})
        makeFile(photos + QLatin1Char('/') + QLatin1String(name), 4000);
    makeFile(notes + QStringLiteral("/shopping.txt"), 50);
    for (int number = 10; number < 60; ++number)
        makeFile(notes + QStringLiteral("/many/note-%1.txt").arg(number), number);
    age(photos);
    age(notes);
}

} // namespace

BrowserScene::BrowserScene(Journal& journal)
{
    makeTrees();
    auto* browser = new FileBrowserWidget;
    browser->setAllowedDirs({photos, notes});
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
