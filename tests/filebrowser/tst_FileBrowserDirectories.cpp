#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"
#include "ui/FileSystemModel.h"

#include <QComboBox>
#include <QListView>
#include <QStyle>
#include <QTreeView>

#include <memory>

using namespace test;

/// What an application sets: allowed directories, filters and the selection mode.
class tst_FileBrowserDirectories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void missingDirectoriesAreLeftOut();
    void entriesAsPassedIn_data();
    void entriesAsPassedIn();
    void relativeDirectoryGivesTheCrumbsOfItsText();
    void emptyEntryIsADirectory();
    void filesAreNoDirectories();
    void networkDriveIcon();
    void firstDirectoryIsShown();
    void emptyListOnAFullBrowser();
    void emptyListOnANewBrowser();
    void setTwice();
    void theSameEntryAgainIsNoChange();
    void notConfinedByThem();
    void directoryRemovedAfterwards();
    void filters_data();
    void filters();
    void filtersHideRatherThanDisable();
    void selectionModes_data();
    void selectionModes();
    void selectionModeOutOfRange();
    void selectionModeSetOnTheView();

private:
    QStringList comboTexts() const;

    Tree m_tree;
    std::unique_ptr<ui::FileBrowserWidget> m_browser;
    std::unique_ptr<BrowserParts> m_parts;
    QString m_workingDirectory;
};

void tst_FileBrowserDirectories::initTestCase()
{
    m_tree.makeDir(QStringLiteral("first/inside"));
    m_tree.makeDir(QStringLiteral("second"));
    for (const char* name : {"a.txt", "b.TXT", "c.csv", "d"})
        m_tree.makeFile(QStringLiteral("first/") + QString::fromLatin1(name));
    m_workingDirectory = QDir::currentPath();
}

void tst_FileBrowserDirectories::init()
{
    m_browser = std::make_unique<ui::FileBrowserWidget>();
    m_parts = std::make_unique<BrowserParts>(*m_browser);
}

void tst_FileBrowserDirectories::cleanup()
{
    m_browser.reset();
    QDir::setCurrent(m_workingDirectory);
}

QStringList tst_FileBrowserDirectories::comboTexts() const
{
    QStringList texts;
    for (int i = 0; i < m_parts->combo->count(); ++i)
        texts.append(m_parts->combo->itemText(i));
    return texts;
}

void tst_FileBrowserDirectories::missingDirectoriesAreLeftOut()
{
    m_browser->setAllowedDirs(
        {m_tree.path(QStringLiteral("missing")), m_tree.path(QStringLiteral("second"))});
    QCOMPARE(comboTexts(), QStringList{m_tree.path(QStringLiteral("second"))});
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("second")));
}

void tst_FileBrowserDirectories::entriesAsPassedIn_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QString>("shown");
    QTest::newRow("trailing slash")
        << m_tree.path() + "/first/" << m_tree.path(QStringLiteral("first"));
    QTest::newRow("with dots") << m_tree.path() + "/second/../first"
                               << m_tree.path(QStringLiteral("first"));
    QTest::newRow("here") << "."
                          << ".";
}

void tst_FileBrowserDirectories::entriesAsPassedIn()
{
    QFETCH(QString, dir);
    QDir::setCurrent(m_tree.path());
    m_browser->setAllowedDirs({dir});
    QCOMPARE(comboTexts(), QStringList{dir});
    QVERIFY(!m_parts->combo->itemData(0).isValid());
    QTEST(m_browser->currentPath(), "shown");
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
}

void tst_FileBrowserDirectories::relativeDirectoryGivesTheCrumbsOfItsText()
{
    QDir::setCurrent(m_tree.path());
    m_browser->setAllowedDirs({QStringLiteral("first")});
    QCOMPARE(comboTexts(), QStringList{QStringLiteral("first")});
    QCOMPARE(m_browser->currentPath(), QStringLiteral("first"));
    // QDir takes no relative path for one below another, so the root gets a crumb of its own.
    QCOMPARE(crumbs(*m_parts->bar), QStringList{"first"});
    QCOMPARE(lastCrumbPath(*m_parts->bar), QStringLiteral("first/first"));
}

void tst_FileBrowserDirectories::emptyEntryIsADirectory()
{
    m_browser->setAllowedDirs({QString()});
    QCOMPARE(comboTexts(), QStringList{QString()});
    QCOMPARE(m_browser->currentPath(), QString());
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
}

void tst_FileBrowserDirectories::filesAreNoDirectories()
{
    m_browser->setAllowedDirs({m_tree.path(QStringLiteral("first/a.txt"))});
    QCOMPARE(comboTexts(), QStringList());
}

void tst_FileBrowserDirectories::networkDriveIcon()
{
    m_browser->setAllowedDirs({m_tree.path()});
    const QImage icon = m_parts->combo->itemIcon(0).pixmap(16).toImage();
    QVERIFY(!icon.isNull());
    QCOMPARE(icon, m_browser->style()->standardIcon(QStyle::SP_DriveNetIcon).pixmap(16).toImage());
    QVERIFY(icon != m_browser->style()->standardIcon(QStyle::SP_DirIcon).pixmap(16).toImage());
}

void tst_FileBrowserDirectories::firstDirectoryIsShown()
{
    const QString first = m_tree.path(QStringLiteral("first"));
    m_parts->bar->changeDir(QStringLiteral("/a/b"));
    m_browser->setAllowedDirs({first, m_tree.path(QStringLiteral("second"))});
    QCOMPARE(m_parts->combo->currentIndex(), 0);
    QCOMPARE(m_browser->currentPath(), first);
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
    m_parts->bar->changeDir(first + "/inside");
    QCOMPARE(crumbs(*m_parts->bar), QStringList{"inside"});
}

void tst_FileBrowserDirectories::emptyListOnAFullBrowser()
{
    m_browser->setAllowedDirs({m_tree.path()});
    m_parts->bar->changeDir(m_tree.path(QStringLiteral("first")));
    m_browser->setAllowedDirs({});
    QCOMPARE(m_parts->combo->count(), 0);
    QCOMPARE(m_browser->currentPath(), QString());
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
    QVERIFY(!m_parts->tileView->rootIndex().isValid());
}

void tst_FileBrowserDirectories::emptyListOnANewBrowser()
{
    const QString before = m_browser->currentPath();
    m_browser->setAllowedDirs({});
    QCOMPARE(m_browser->currentPath(), before);
}

void tst_FileBrowserDirectories::setTwice()
{
    QStringList shown;
    connect(m_parts->model, &QFileSystemModel::rootPathChanged, this,
            [&](const QString& path) { shown.append(path); });
    m_browser->setAllowedDirs({m_tree.path(QStringLiteral("first"))});
    m_browser->setAllowedDirs({m_tree.path(QStringLiteral("second"))});
    QCOMPARE(comboTexts(), QStringList{m_tree.path(QStringLiteral("second"))});
    QCOMPARE(shown,
             (QStringList{m_tree.path(QStringLiteral("first")), QString(),
                          m_tree.path(QStringLiteral("second"))}));
}

void tst_FileBrowserDirectories::theSameEntryAgainIsNoChange()
{
    m_browser->setAllowedDirs(
        {m_tree.path(QStringLiteral("first")), m_tree.path(QStringLiteral("second"))});
    m_browser->setRootPath(m_tree.path(QStringLiteral("first/inside")));
    m_parts->combo->setCurrentIndex(0);
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("first/inside")));
    m_parts->combo->setCurrentIndex(1);
    m_parts->combo->setCurrentIndex(0);
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("first")));
}

void tst_FileBrowserDirectories::notConfinedByThem()
{
    m_browser->setAllowedDirs({m_tree.path(QStringLiteral("first"))});
    m_browser->setRootPath(m_tree.path(QStringLiteral("second")));
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("second")));
}

void tst_FileBrowserDirectories::directoryRemovedAfterwards()
{
    m_tree.makeDir(QStringLiteral("brief"));
    m_browser->setAllowedDirs(
        {m_tree.path(QStringLiteral("first")), m_tree.path(QStringLiteral("brief"))});
    QVERIFY(QDir().rmdir(m_tree.path(QStringLiteral("brief"))));
    m_parts->combo->setCurrentIndex(1);
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("first")));
}

void tst_FileBrowserDirectories::filters_data()
{
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("none") << QStringList() << QStringList{"inside", "a.txt", "b.TXT", "c.csv", "d"};
    QTest::newRow("one") << QStringList{"*.txt"} << QStringList{"inside", "a.txt", "b.TXT"};
    QTest::newRow("two") << QStringList{"*.csv", "a*"} << QStringList{"inside", "a.txt", "c.csv"};
    QTest::newRow("nothing matches") << QStringList{"*.jpg"} << QStringList{"inside"};
    QTest::newRow("empty pattern") << QStringList{""} << QStringList{"inside"};
}

void tst_FileBrowserDirectories::filters()
{
    QFETCH(QStringList, filters);
    m_browser->setAllowedDirs({m_tree.path(QStringLiteral("first"))});
    QTRY_COMPARE(shownNames(*m_parts->tileView).size(), 5);
    m_browser->setFilters(filters);
    QFETCH(QStringList, shown);
    QTRY_COMPARE(shownNames(*m_parts->tileView), shown);
    QTRY_COMPARE(shownNames(*m_parts->listView), shown);
    m_browser->setFilters({});
    QTRY_COMPARE(shownNames(*m_parts->tileView).size(), 5);
}

void tst_FileBrowserDirectories::filtersHideRatherThanDisable()
{
    QVERIFY(m_parts->model->nameFilterDisables()); // the base class's own way
    m_browser->setFilters({QStringLiteral("*.txt")});
    QVERIFY(!m_parts->model->nameFilterDisables());
    QCOMPARE(m_parts->model->nameFilters(), QStringList{"*.txt"});
}

void tst_FileBrowserDirectories::selectionModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("viewMode");
    QTest::addColumn<int>("modeBefore");
    QTest::newRow("none") << 0 << int(QAbstractItemView::NoSelection) << 1;
    QTest::newRow("single after multi") << 1 << int(QAbstractItemView::SingleSelection) << 2;
    QTest::newRow("single after none") << 1 << int(QAbstractItemView::SingleSelection) << 0;
    QTest::newRow("multi") << 2 << int(QAbstractItemView::ExtendedSelection) << 1;
}

void tst_FileBrowserDirectories::selectionModes()
{
    QFETCH(int, mode);
    QFETCH(int, viewMode);
    QFETCH(int, modeBefore);
    m_browser->setSelectionMode(ui::FileBrowserWidget::SelectionMode(modeBefore));
    m_browser->setSelectionMode(ui::FileBrowserWidget::SelectionMode(mode));
    QCOMPARE(int(m_parts->tileView->selectionMode()), viewMode);
    QCOMPARE(int(m_parts->listView->selectionMode()), viewMode);
    QCOMPARE(int(m_browser->selectionMode()), mode);
}

void tst_FileBrowserDirectories::selectionModeOutOfRange()
{
    m_browser->setSelectionMode(ui::FileBrowserWidget::MultiSelection);
    for (const int mode : {5, 3, -1, 1 << 30}) {
        m_browser->setSelectionMode(ui::FileBrowserWidget::SelectionMode(mode));
        QCOMPARE(m_parts->tileView->selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(m_parts->listView->selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(m_browser->selectionMode(), ui::FileBrowserWidget::MultiSelection);
    }
}

void tst_FileBrowserDirectories::selectionModeSetOnTheView()
{
    m_parts->tileView->setSelectionMode(QAbstractItemView::ContiguousSelection);
    QCOMPARE(m_browser->selectionMode(), ui::FileBrowserWidget::NoSelection);
    m_parts->tileView->setSelectionMode(QAbstractItemView::MultiSelection);
    QCOMPARE(m_browser->selectionMode(), ui::FileBrowserWidget::NoSelection);
    m_parts->listView->setSelectionMode(QAbstractItemView::NoSelection);
    m_parts->tileView->setSelectionMode(QAbstractItemView::SingleSelection);
    QCOMPARE(m_browser->selectionMode(), ui::FileBrowserWidget::SingleSelection);
}

const test::Registration<tst_FileBrowserDirectories> registration;

#include "tst_FileBrowserDirectories.moc"
