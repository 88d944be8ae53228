#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"
#include "ui/FileSystemModel.h"

#include <QItemSelectionModel>
#include <QListView>
#include <QPushButton>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

using namespace test;

/// The answers to what is selected in the views.
class tst_FileBrowserSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fileIsOnlyReported();
    void directoryIsOpened();
    void openedDirectoryStaysSelected();
    void directoryIsOpenedWithASingleSelection();
    void filesStayDirectoriesGo();
    void onlyTheFirstColumnIsDeselected();
    void twoDirectoriesOpenTheSecond();
    void handlerAlwaysReadsTheTileView();
    void listViewSelectionOpensWhatTheTileViewHolds();
    void directorySelectedInTheListViewStays();
    void selectedFilesOfTheVisibleView();
    void selectedFilesOfAHiddenBrowser();
    void selectedFilesInTheOrderOfTheSelection();
    void selectedFilesOfAnySelectionOfCells();
    void clearingIsReported();
    void clickInTheTileView();
    void clickOnADirectory();
    void controlClickInTheTileView();
    void noSelectionOpensNothing();
    void linkToADirectoryIsOpened();
    void browserDeletedInTheSlot_data();
    void browserDeletedInTheSlot();
    void browserDeletedWhileDirectoriesAreDeselected();
    void onlyEntryOpensAgainOnceCleared();
    void browserDeletedLaterByAClick();
    void modelDeletedInTheSlot();
    void tileViewDeletedInTheSlot();
    void barDeletedInTheSlot();
    void viewWithAModelOfTheProgram();
    void selectedDirectoryRemoved();
    void modelEmptiedUnderASelection();

private:
    void select(const QStringList& names)
    {
        selectEntries(*m_parts->tileView, names);
    }
    void click(QAbstractItemView& view, const QString& name,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QStringList paths(const QStringList& names) const;
    void deleteInTheSlot(QObject* part);

    std::unique_ptr<Tree> m_tree;
    std::unique_ptr<QWidget> m_window;
    QPointer<ui::FileBrowserWidget> m_browser;
    std::unique_ptr<BrowserParts> m_parts;
    int m_changes = 0;
};

void tst_FileBrowserSelection::init()
{
    m_tree = std::make_unique<Tree>();
    for (const char* name : {"alpha/inner", "beta", "gamma"})
        m_tree->makeDir(QString::fromLatin1(name));
    for (const char* name : {"one", "two", "three", "alpha/deep"})
        m_tree->makeFile(QString::fromLatin1(name));

    m_window = std::make_unique<QWidget>();
    m_browser = new ui::FileBrowserWidget(m_window.get());
    m_parts = std::make_unique<BrowserParts>(*m_browser);
    m_browser->setSelectionMode(ui::FileBrowserWidget::MultiSelection);
    m_browser->setAllowedDirs({m_tree->path()});
    m_window->resize(800, 480);
    m_browser->setGeometry(m_window->rect());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QTRY_COMPARE(shownNames(*m_parts->tileView),
                 (QStringList{"alpha", "beta", "gamma", "one", "three", "two"}));
    m_changes = 0;
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, this, [this] { ++m_changes; });
}

void tst_FileBrowserSelection::cleanup()
{
    m_window.reset();
}

void tst_FileBrowserSelection::click(QAbstractItemView& view, const QString& name,
                                     Qt::KeyboardModifiers modifiers)
{
    const QModelIndex index = entry(view, name);
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(index).center());
}

QStringList tst_FileBrowserSelection::paths(const QStringList& names) const
{
    QStringList result;
    for (const QString& name : names)
        result.append(m_tree->path(name));
    return result;
}

/// A slot of selectionChanged() deletes \a part while directories are still to be deselected.
void tst_FileBrowserSelection::deleteInTheSlot(QObject* part)
{
    const QPointer<QObject> guard(part);
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, this,
            [guard] { delete guard.data(); });
    select({"alpha", "one", "beta", "two"});
    QVERIFY(guard.isNull());
}

void tst_FileBrowserSelection::fileIsOnlyReported()
{
    select({"one"});
    QCOMPARE(m_changes, 1);
    QCOMPARE(m_browser->currentPath(), m_tree->path());
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
    QCOMPARE(m_browser->selectedFiles(), paths({"one"}));
}

void tst_FileBrowserSelection::directoryIsOpened()
{
    bool openedBefore = false;
    const QObject scope; // of the connection
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, &scope, [this, &openedBefore] {
        openedBefore = m_browser->currentPath() == m_tree->path(QStringLiteral("alpha"))
            && crumbs(*m_parts->bar) == QStringList{"alpha"};
    });
    select({"alpha"});
    QVERIFY(openedBefore);
    QCOMPARE(m_changes, 1);
    const QModelIndex root = m_parts->model->index(m_tree->path(QStringLiteral("alpha")));
    QCOMPARE(m_parts->tileView->rootIndex(), root);
    QCOMPARE(m_parts->listView->rootIndex(), root);
    QTRY_COMPARE(shownNames(*m_parts->tileView), (QStringList{"inner", "deep"}));
}

void tst_FileBrowserSelection::openedDirectoryStaysSelected()
{
    select({"alpha"});
    QCOMPARE(m_browser->selectedFiles(), paths({"alpha"}));
}

void tst_FileBrowserSelection::directoryIsOpenedWithASingleSelection()
{
    m_browser->setSelectionMode(ui::FileBrowserWidget::SingleSelection);
    click(*m_parts->tileView, QStringLiteral("alpha"));
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("alpha")));
    QCOMPARE(crumbs(*m_parts->bar), QStringList{"alpha"});
    QCOMPARE(m_changes, 1);
}

void tst_FileBrowserSelection::filesStayDirectoriesGo()
{
    select({"one", "beta", "two"});
    QCOMPARE(m_changes, 2);
    QCOMPARE(m_browser->currentPath(), m_tree->path());
    QStringList files = m_browser->selectedFiles();
    files.sort();
    QCOMPARE(files, paths({"one", "two"}));
}

void tst_FileBrowserSelection::onlyTheFirstColumnIsDeselected()
{
    select({"one", "beta"});
    const QModelIndex beta = entry(*m_parts->tileView, QStringLiteral("beta"));
    const QItemSelectionModel& selection = *m_parts->tileView->selectionModel();
    QVERIFY(!selection.isSelected(beta));
    for (int column = 1; column < 4; ++column)
        QVERIFY(selection.isSelected(beta.sibling(beta.row(), column)));
    QCOMPARE(m_browser->selectedFiles(), paths({"one"}));
}

void tst_FileBrowserSelection::twoDirectoriesOpenTheSecond()
{
    QStringList seen;
    const QObject scope; // of the connection
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, &scope, [this, &seen] {
        seen.append(QDir(m_tree->path()).relativeFilePath(m_browser->currentPath()) + ": "
                    + selectedNames(*m_parts->tileView).join(QLatin1Char(' ')));
    });
    select({"alpha", "beta"});
    QCOMPARE(seen, (QStringList{"beta: beta", "beta: ", "beta: "}));
}

void tst_FileBrowserSelection::handlerAlwaysReadsTheTileView()
{
    m_parts->listButton->click();
    selectEntries(*m_parts->listView, {"alpha"});
    QCOMPARE(m_changes, 1);
    QCOMPARE(m_browser->currentPath(), m_tree->path());
    QCOMPARE(selectedNames(*m_parts->listView), QStringList{"alpha"});
}

void tst_FileBrowserSelection::listViewSelectionOpensWhatTheTileViewHolds()
{
    select({"alpha"});
    m_browser->setRootPath(m_tree->path());
    m_parts->listButton->click();
    selectEntries(*m_parts->listView, {"one"});
    // The tile view's selection is still that single directory.
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("alpha")));
    QCOMPARE(m_changes, 2);
}

void tst_FileBrowserSelection::directorySelectedInTheListViewStays()
{
    m_parts->listButton->click();
    selectEntries(*m_parts->listView, {"alpha", "one", "beta"});
    QCOMPARE(m_changes, 1);
    QCOMPARE(m_browser->selectedFiles(), paths({"alpha", "one", "beta"}));
}

void tst_FileBrowserSelection::selectedFilesOfTheVisibleView()
{
    select({"one"});
    selectEntries(*m_parts->listView, {"two", "beta"});
    QCOMPARE(m_browser->selectedFiles(), paths({"one"}));
    m_parts->listButton->click();
    QCOMPARE(m_browser->selectedFiles(), paths({"two", "beta"}));
    m_parts->tileButton->click();
    QCOMPARE(m_browser->selectedFiles(), paths({"one"}));
}

void tst_FileBrowserSelection::selectedFilesOfAHiddenBrowser()
{
    select({"one"});
    selectEntries(*m_parts->listView, {"two"});
    m_window->hide(); // neither view is visible: the list view answers
    QCOMPARE(m_browser->selectedFiles(), paths({"two"}));
}

void tst_FileBrowserSelection::selectedFilesInTheOrderOfTheSelection()
{
    select({"two", "one", "three"});
    QCOMPARE(m_browser->selectedFiles(), paths({"two", "one", "three"}));
}

void tst_FileBrowserSelection::selectedFilesOfAnySelectionOfCells()
{
    m_parts->listButton->click();
    QItemSelectionModel& selection = *m_parts->listView->selectionModel();
    const QModelIndex root = m_parts->listView->rootIndex();
    QRandomGenerator random(3);
    for (int iteration = 0; iteration < 400; ++iteration) {
        const int top = random.bounded(6);
        const int left = random.bounded(4);
        const QItemSelection cells(
            m_parts->model->index(top, left, root),
            m_parts->model->index(random.bounded(top, 6), random.bounded(left, 4), root));
        const QVector<QItemSelectionModel::SelectionFlags> commands{
            QItemSelectionModel::Select, QItemSelectionModel::Deselect, QItemSelectionModel::Toggle,
            QItemSelectionModel::Select | QItemSelectionModel::Rows,
            QItemSelectionModel::Toggle | QItemSelectionModel::Current};
        selection.select(cells, commands.at(random.bounded(commands.size())));
        QStringList expected;
        const QModelIndexList rows = selection.selectedRows();
        for (const QModelIndex& row : rows)
            expected.append(m_parts->model->filePath(row));
        QCOMPARE(m_browser->selectedFiles(), expected);
    }
}

void tst_FileBrowserSelection::clearingIsReported()
{
    select({"one", "two"});
    m_changes = 0;
    m_parts->tileView->clearSelection();
    QCOMPARE(m_changes, 1);
    QCOMPARE(m_browser->selectedFiles(), QStringList());
}

void tst_FileBrowserSelection::clickInTheTileView()
{
    click(*m_parts->tileView, QStringLiteral("three"));
    QCOMPARE(m_changes, 1);
    QCOMPARE(m_browser->selectedFiles(), paths({"three"}));
}

void tst_FileBrowserSelection::clickOnADirectory()
{
    click(*m_parts->tileView, QStringLiteral("gamma"));
    QCOMPARE(m_changes, 1);
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("gamma")));
}

void tst_FileBrowserSelection::controlClickInTheTileView()
{
    click(*m_parts->tileView, QStringLiteral("one"));
    click(*m_parts->tileView, QStringLiteral("two"), Qt::ControlModifier);
    QCOMPARE(m_changes, 2);
    click(*m_parts->tileView, QStringLiteral("beta"), Qt::ControlModifier);
    QCOMPARE(m_changes, 4);
    QCOMPARE(m_browser->selectedFiles(), paths({"one", "two"}));
    QCOMPARE(m_browser->currentPath(), m_tree->path());
}

void tst_FileBrowserSelection::noSelectionOpensNothing()
{
    m_browser->setSelectionMode(ui::FileBrowserWidget::NoSelection);
    click(*m_parts->tileView, QStringLiteral("alpha"));
    click(*m_parts->tileView, QStringLiteral("one"));
    QCOMPARE(m_changes, 0);
    QCOMPARE(m_browser->currentPath(), m_tree->path());
}

void tst_FileBrowserSelection::linkToADirectoryIsOpened()
{
    m_tree->makeLink(m_tree->path(QStringLiteral("beta")), QStringLiteral("link"));
    QTRY_VERIFY(entry(*m_parts->tileView, QStringLiteral("link")).isValid());
    QTRY_VERIFY(m_parts->model->isDir(entry(*m_parts->tileView, QStringLiteral("link"))));
    const QString path =
        m_parts->model->filePath(entry(*m_parts->tileView, QStringLiteral("link")));
    select({"link"});
    QCOMPARE(m_browser->currentPath(), path);
}

void tst_FileBrowserSelection::browserDeletedInTheSlot_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("a file") << QStringList{"one"};
    QTest::newRow("a directory") << QStringList{"alpha"};
    QTest::newRow("directories and files, steps to go")
        << QStringList{"alpha", "one", "beta", "gamma", "two"};
    QTest::newRow("directories, steps to go") << QStringList{"alpha", "beta", "gamma"};
}

void tst_FileBrowserSelection::browserDeletedInTheSlot()
{
    QFETCH(QStringList, names);
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, this,
            [this] { delete m_browser; });
    select(names);
    QVERIFY(m_browser.isNull());
    QCOMPARE(m_changes, 1);
}

void tst_FileBrowserSelection::browserDeletedWhileDirectoriesAreDeselected()
{
    connect(m_parts->tileView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { delete m_browser; });
    select({"alpha", "one", "beta"});
    QVERIFY(m_browser.isNull());
    QCOMPARE(m_changes, 1); // the innermost run's: it comes before the slot
}

/// As the class's page says of a directory with one entry.
void tst_FileBrowserSelection::onlyEntryOpensAgainOnceCleared()
{
    m_tree->makeDir(QStringLiteral("alpha/only"));
    const QString only = m_tree->path(QStringLiteral("alpha/only"));
    const QString above = m_tree->path(QStringLiteral("alpha"));
    const auto openOnly = [this] {
        QTRY_VERIFY(entry(*m_parts->tileView, QStringLiteral("only")).isValid());
        click(*m_parts->tileView, QStringLiteral("only"));
    };
    m_browser->setRootPath(above);
    openOnly();
    QCOMPARE(m_browser->currentPath(), only);
    Q_EMIT m_parts->bar->dirChanged(above);
    openOnly();
    QCOMPARE(m_browser->currentPath(), above);

    connect(m_parts->bar, &BreadCrumbsWidget::dirChanged, m_parts->tileView,
            &QListView::clearSelection);
    Q_EMIT m_parts->bar->dirChanged(above);
    openOnly();
    QCOMPARE(m_browser->currentPath(), only);
}

void tst_FileBrowserSelection::browserDeletedLaterByAClick()
{
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, m_browser, &QObject::deleteLater);
    click(*m_parts->tileView, QStringLiteral("alpha"));
    QTRY_VERIFY(m_browser.isNull());
}

void tst_FileBrowserSelection::modelDeletedInTheSlot()
{
    deleteInTheSlot(m_parts->model);
    QCOMPARE(m_browser->selectedFiles(), QStringList());
}

void tst_FileBrowserSelection::tileViewDeletedInTheSlot()
{
    deleteInTheSlot(m_parts->tileView);
    m_changes = 0;
    selectEntries(*m_parts->listView, {"one"}); // has the handler read the tile view
    QCOMPARE(m_changes, 1);
}

void tst_FileBrowserSelection::barDeletedInTheSlot()
{
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, this,
            [this] { delete m_browser->findChild<BreadCrumbsWidget*>(); });
    select({"alpha", "beta", "gamma"});
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("gamma")));
    QCOMPARE(m_changes, 4);
}

void tst_FileBrowserSelection::viewWithAModelOfTheProgram()
{
    QStandardItemModel other(2, m_parts->model->columnCount());
    m_parts->tileView->setModel(&other);
    m_parts->tileView->setRootIndex(QModelIndex());
    m_parts->tileView->selectionModel()->select(
        other.index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    selectEntries(*m_parts->listView, {"one"}); // has the handler read the tile view
    QCOMPARE(m_changes, 1);
    QCOMPARE(m_browser->currentPath(), m_tree->path());
    QCOMPARE(m_browser->selectedFiles(), QStringList());
    delete m_parts->model;
    QCOMPARE(m_browser->selectedFiles(), QStringList());
}

void tst_FileBrowserSelection::selectedDirectoryRemoved()
{
    select({"alpha"});
    QTRY_COMPARE(shownNames(*m_parts->tileView), (QStringList{"inner", "deep"}));
    QVERIFY(QDir(m_tree->path(QStringLiteral("alpha"))).removeRecursively());
    m_browser->setRootPath(m_tree->path());
    QTRY_COMPARE(shownNames(*m_parts->tileView),
                 (QStringList{"beta", "gamma", "one", "three", "two"}));
    QTRY_COMPARE(m_browser->selectedFiles(), QStringList());
    select({"beta"});
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("beta")));
}

void tst_FileBrowserSelection::modelEmptiedUnderASelection()
{
    select({"one", "two", "three"});
    m_changes = 0;
    for (const char* name : {"one", "two", "three"})
        QVERIFY(QFile::remove(m_tree->path(QString::fromLatin1(name))));
    QTRY_COMPARE(shownNames(*m_parts->tileView), (QStringList{"alpha", "beta", "gamma"}));
    QCOMPARE(m_browser->selectedFiles(), QStringList());
    QCOMPARE(m_changes, 3);
    QCOMPARE(m_browser->currentPath(), m_tree->path());
}

const test::Registration<tst_FileBrowserSelection> registration;

#include "tst_FileBrowserSelection.moc"
