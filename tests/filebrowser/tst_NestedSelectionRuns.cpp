#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "RecursiveBrowser.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"

#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QListView>
#include <QRandomGenerator>
#include <QTreeView>

using namespace test;

namespace {

using Ranges = QVector<QPair<int, int>>; ///< First and last row, or column, of each.

/// What an application does in a slot of selectionChanged(), given the number of the emission.
using Slot = std::function<void(QListView& tileView, int emission)>;

/// What it does in a slot of the tile view's selection model, connected to a finished browser.
using ChangeSlot = std::function<void(const BrowserParts& parts)>;

constexpr auto selectRows = QItemSelectionModel::Select | QItemSelectionModel::Rows;

void doNothing(QListView&, int) { }

void leaveAlone(const BrowserParts&) { }

void mirrorInListView(const BrowserParts& parts)
{
    parts.listView->selectionModel()->select(parts.tileView->selectionModel()->selection(),
                                             QItemSelectionModel::ClearAndSelect);
}

QItemSelection selectionOf(const Ranges& ranges, const QModelIndex& root,
                           const Ranges::value_type& columns = {0, 0})
{
    QItemSelection selection;
    for (const auto& range : ranges)
        selection.append({root.model()->index(range.first, columns.first, root),
                          root.model()->index(range.second, columns.second, root)});
    return selection;
}

/// The cells of \a selection, by name and column.
QString cells(const QItemSelection& selection)
{
    QStringList result;
    const QModelIndexList indexes = selection.indexes();
    for (const QModelIndex& index : indexes)
        result.append(QStringLiteral("%1:%2")
                          .arg(index.siblingAtColumn(0).data().toString())
                          .arg(index.column()));
    return result.join(QLatin1Char(' '));
}

/// The whole rows of \a selectionModel in its order, and how many cells are selected.
QString rows(const QItemSelectionModel& selectionModel)
{
    QItemSelection whole;
    int count = 0;
    for (const QItemSelectionRange& range : selectionModel.selection()) {
        count += range.width() * range.height();
        if (range.width() == selectionModel.model()->columnCount(range.parent()))
            whole.append(range);
    }
    return QStringLiteral("%1 of %2").arg(cells(whole)).arg(count);
}

QString ranges(const QItemSelectionModel& selectionModel)
{
    return cells(selectionModel.selection());
}

/// Waits until \a view shows \a count entries, sorted.
bool loaded(const QAbstractItemView& view, int count)
{
    return QTest::qWaitFor([&] {
        const QStringList names = shownNames(view);
        return names.size() == count && std::is_sorted(names.cbegin(), names.cend());
    });
}

struct Program
{
    QString path;
    int count; ///< Entries of the directory.
    QVector<Ranges> steps; ///< Rows, selected one after the other.
    Slot slot = doNothing;
    ChangeSlot changeSlot = leaveAlone;
    QString (*state)(const QItemSelectionModel&) = ranges;
    Qt::SortOrder order = Qt::AscendingOrder;
    Ranges columns = {{0, 3}}; ///< Of each step, selected one after the other.
};

/// Makes the selections of \a program.
void play(QListView& tileView, const Program& program)
{
    const QPersistentModelIndex root = tileView.rootIndex();
    for (const Ranges& ranges : program.steps) {
        for (const auto& columns : program.columns)
            tileView.selectionModel()->select(selectionOf(ranges, root, columns),
                                              QItemSelectionModel::Select);
    }
    // Takes the last command of the selection model back, as Shift and a tap do.
    tileView.selectionModel()->select(root.model()->index(0, 0, root),
                                      selectRows | QItemSelectionModel::Current);
}

/// In order, what the slots of an application see while \a program runs.
template <class Browser>
QStringList log(const Program& program)
{
    Browser browser;
    const BrowserParts parts(browser);
    const QItemSelectionModel* selectionModel = parts.tileView->selectionModel();
    browser.setAllowedDirs({program.path});
    if (!loaded(*parts.tileView, program.count))
        return {};
    parts.listView->sortByColumn(0, program.order);
    QStringList result;
    int emissions = 0;
    QObject::connect(&browser, &Browser::selectionChanged, &browser, [&] {
        result.append(QStringLiteral("%1, bar %2: %3")
                          .arg(browser.currentPath(), lastCrumbPath(*parts.bar),
                               program.state(*selectionModel)));
        program.slot(*parts.tileView, ++emissions);
    });
    QObject::connect(selectionModel, &QItemSelectionModel::selectionChanged, &browser,
                     [&](const QItemSelection& selected, const QItemSelection& deselected) {
                         result.append(QStringLiteral("+%1 -%2: %3")
                                           .arg(cells(selected), cells(deselected),
                                                program.state(*selectionModel)));
                         program.changeSlot(parts);
                     });
    play(*parts.tileView, program);
    return result;
}

void addManyDirectories(const char* name, const Ranges& ranges,
                        Qt::SortOrder order = Qt::AscendingOrder, const Ranges& columns = {{0, 3}})
{
    QTest::newRow(name) << ranges << order << columns;
}

/// One to four ranges, in any order, of the rows 0 to \a count - 1.
Ranges randomRanges(QRandomGenerator& random, int count)
{
    Ranges ranges;
    const int size = random.bounded(1, 5);
    for (int i = 0; i < size; ++i) {
        const int first = random.bounded(count);
        const Ranges::value_type range(first, random.bounded(first, count));
        const bool overlaps =
            std::any_of(ranges.cbegin(), ranges.cend(), [&](const Ranges::value_type& other) {
                return range.first <= other.second && other.first <= range.second;
            });
        if (!overlaps)
            ranges.append(range);
    }
    return ranges;
}

/// A slot that meddles with the selection at the first few emissions, always the same way for a \a
/// seed.
Slot randomSlot(quint32 seed, const QString& path)
{
    constexpr int lastMeddling = 4;
    return [seed, path](QListView& tileView, int emission) {
        QRandomGenerator random(seed + quint32(emission));
        auto* model = qobject_cast<QFileSystemModel*>(tileView.model());
        const QModelIndex root = model->index(path);
        if (emission > lastMeddling)
            return;
        const QItemSelection selection =
            selectionOf(randomRanges(random, model->rowCount(root)), root);
        const QVector<QItemSelectionModel::SelectionFlags> commands{
            QItemSelectionModel::NoUpdate,
            QItemSelectionModel::Clear,
            selectRows,
            selectRows | QItemSelectionModel::Clear,
            selectRows | QItemSelectionModel::Current,
            QItemSelectionModel::Deselect | QItemSelectionModel::Rows};
        tileView.selectionModel()->select(selection, commands.at(random.bounded(commands.size())));
    };
}

} // namespace

class tst_NestedSelectionRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void matchPlainRecursion_data();
    void matchPlainRecursion();
    void matchPlainRecursionForAnySelection();
    void matchPlainRecursionWhateverSlotsDo();
    void matchPlainRecursionThoughASlotOpensOne();
    void matchPlainRecursionThoughOneBecomesAFile();
    void onceForEachDirectoryAndOnceMore_data();
    void onceForEachDirectoryAndOnceMore();
    void mirroredSelection();
    void matchPlainRecursionForManyDirectories_data();
    void matchPlainRecursionForManyDirectories();
    void allOfManyDirectories_data();
    void allOfManyDirectories();
    void slotThatReadsTheSelectionOfManyDirectories();
    void browserDeletedAmongManyDirectories_data();
    void browserDeletedAmongManyDirectories();

private:
    static constexpr int directoryCount = 12;
    static constexpr int fileCount = 8;
    static constexpr int someDirectories = 300;
    static constexpr int manyDirectories = 10000;
    static constexpr int nestedRuns = 256; ///< Each leaves a range of its own.
    static constexpr int stackForNesting = 2 << 20; // bytes; of eight million

    Tree m_directories; ///< Directories alone.
    Tree m_mixed; ///< Directories first, as the model sorts, then files.
    Tree m_some; ///< More directories than nest, then a file.
    Tree m_large; ///< Many directories, then a file.
};

void tst_NestedSelectionRuns::initTestCase()
{
    const QStringList names = Tree::names(QStringLiteral("d"), directoryCount);
    for (const QString& name : names) {
        m_directories.makeDir(name);
        m_mixed.makeDir(name);
    }
    const QStringList files = Tree::names(QStringLiteral("f"), fileCount);
    for (const QString& name : files)
        m_mixed.makeFile(name);
    const QStringList some = Tree::names(QStringLiteral("d"), someDirectories);
    for (const QString& name : some)
        m_some.makeDir(name);
    m_some.makeFile(QStringLiteral("file"));
    const QStringList many = Tree::names(QStringLiteral("d"), manyDirectories);
    for (const QString& name : many)
        m_large.makeDir(name);
    m_large.makeFile(QStringLiteral("file"));
}

void tst_NestedSelectionRuns::matchPlainRecursion_data()
{
    QTest::addColumn<QVector<Ranges>>("steps");
    QTest::newRow("one directory") << QVector<Ranges>{{{3, 3}}};
    QTest::newRow("two directories") << QVector<Ranges>{{{3, 4}}};
    QTest::newRow("two apart") << QVector<Ranges>{{{7, 7}, {2, 2}}};
    QTest::newRow("three directories") << QVector<Ranges>{{{3, 5}}};
    QTest::newRow("ranges, later rows first") << QVector<Ranges>{{{8, 11}, {1, 3}}};
    QTest::newRow("all directories") << QVector<Ranges>{{{0, 11}}};
    QTest::newRow("one file") << QVector<Ranges>{{{14, 14}}};
    QTest::newRow("files") << QVector<Ranges>{{{12, 19}}};
    QTest::newRow("a directory and a file") << QVector<Ranges>{{{11, 12}}};
    QTest::newRow("two directories and a file") << QVector<Ranges>{{{10, 12}}};
    QTest::newRow("two files and a directory") << QVector<Ranges>{{{14, 14}, {5, 5}, {13, 13}}};
    QTest::newRow("all") << QVector<Ranges>{{{0, 19}}};
    QTest::newRow("files, then a directory") << QVector<Ranges>{{{13, 15}}, {{2, 2}}};
    QTest::newRow("a directory, then files") << QVector<Ranges>{{{2, 2}}, {{13, 15}}};
    QTest::newRow("a directory, then another") << QVector<Ranges>{{{2, 2}}, {{5, 5}}};
}

void tst_NestedSelectionRuns::matchPlainRecursion()
{
    QFETCH(QVector<Ranges>, steps);
    for (const auto& changeSlot : {leaveAlone, mirrorInListView}) {
        const Program program{m_mixed.path(), directoryCount + fileCount, steps, doNothing,
                              changeSlot};
        const QStringList expected = log<RecursiveBrowser>(program);
        QVERIFY(!expected.isEmpty());
        QCOMPARE(log<ui::FileBrowserWidget>(program), expected);
    }
}

void tst_NestedSelectionRuns::matchPlainRecursionForAnySelection()
{
    QRandomGenerator random(1);
    for (int iteration = 0; iteration < 30; ++iteration) {
        const bool mixed = iteration % 2;
        const int count = directoryCount + (mixed ? fileCount : 0);
        const Program program{mixed ? m_mixed.path() : m_directories.path(),
                              count,
                              {randomRanges(random, count), randomRanges(random, count)}};
        const QStringList expected = log<RecursiveBrowser>(program);
        QVERIFY(!expected.isEmpty());
        QCOMPARE(log<ui::FileBrowserWidget>(program), expected);
    }
}

void tst_NestedSelectionRuns::matchPlainRecursionWhateverSlotsDo()
{
    QRandomGenerator random(2);
    for (quint32 iteration = 0; iteration < 50; ++iteration) {
        const bool mixed = iteration % 2;
        const int count = directoryCount + (mixed ? fileCount : 0);
        const QString path = mixed ? m_mixed.path() : m_directories.path();
        const Program program{path,
                              count,
                              {randomRanges(random, count)},
                              randomSlot(iteration * 100, path),
                              iteration % 3 ? ChangeSlot(leaveAlone)
                                            : ChangeSlot(mirrorInListView)};
        const QStringList expected = log<RecursiveBrowser>(program);
        QVERIFY(!expected.isEmpty());
        QCOMPARE(log<ui::FileBrowserWidget>(program), expected);
    }
}

/// The runs that return deselect it again.
void tst_NestedSelectionRuns::matchPlainRecursionThoughASlotOpensOne()
{
    const auto openOne = [](QListView& tileView, int emission) {
        const QModelIndex middle = tileView.model()->index(5, 0, tileView.rootIndex());
        if (emission == 1)
            tileView.selectionModel()->select(middle, selectRows | QItemSelectionModel::Clear);
    };
    const Program program{m_mixed.path(), directoryCount + fileCount, {{{2, 12}}}, openOne};
    const QStringList expected = log<RecursiveBrowser>(program);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(log<ui::FileBrowserWidget>(program), expected);
}

/// The runs that return leave it selected.
void tst_NestedSelectionRuns::matchPlainRecursionThoughOneBecomesAFile()
{
    const auto becomeFile = [](QListView& tileView, int emission) {
        const auto* model = qobject_cast<QFileSystemModel*>(tileView.model());
        const QModelIndex directory = model->index(1, 0, tileView.rootIndex());
        if (emission != 1)
            return;
        const QString path = model->filePath(directory);
        QVERIFY(QDir().rmdir(path));
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly));
        file.close();
        QTRY_VERIFY(!model->isDir(directory));
        tileView.selectionModel()->select(directory, selectRows);
    };
    const auto run = [&](auto log) {
        Tree tree;
        for (const char* name : {"d1", "d2", "d3"})
            tree.makeDir(QString::fromLatin1(name));
        tree.makeFile(QStringLiteral("f1"));
        QStringList result = log({tree.path(), 4, {{{0, 3}}}, becomeFile});
        return result.replaceInStrings(tree.path(), QString());
    };
    const QStringList expected = run(log<RecursiveBrowser>);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(run(log<ui::FileBrowserWidget>), expected);
}

void tst_NestedSelectionRuns::onceForEachDirectoryAndOnceMore_data()
{
    QTest::addColumn<Ranges>("ranges");
    QTest::addColumn<int>("emissions");
    QTest::newRow("one directory is opened") << Ranges{{0, 0}} << 1;
    QTest::newRow("two directories") << Ranges{{0, 1}} << 3;
    QTest::newRow("three directories") << Ranges{{0, 2}} << 4;
    QTest::newRow("one file") << Ranges{{12, 12}} << 1;
    QTest::newRow("three files") << Ranges{{12, 14}} << 1;
    QTest::newRow("one directory and one file") << Ranges{{11, 12}} << 2;
    QTest::newRow("twelve directories and eight files") << Ranges{{0, 19}} << 13;
}

void tst_NestedSelectionRuns::onceForEachDirectoryAndOnceMore()
{
    QFETCH(Ranges, ranges);
    QFETCH(int, emissions);
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.setAllowedDirs({m_mixed.path()});
    QVERIFY(loaded(*parts.tileView, directoryCount + fileCount));

    QSignalSpy changed(&browser, &ui::FileBrowserWidget::selectionChanged);
    parts.tileView->selectionModel()->select(selectionOf(ranges, parts.tileView->rootIndex()),
                                             selectRows);
    QCOMPARE(changed.count(), emissions);
}

/// Three directories and two files: four runs, and one for the list view's only change.
void tst_NestedSelectionRuns::mirroredSelection()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.setAllowedDirs({m_mixed.path()});
    QVERIFY(loaded(*parts.tileView, directoryCount + fileCount));
    QSignalSpy changed(&browser, &ui::FileBrowserWidget::selectionChanged);
    QStringList seen;
    connect(parts.tileView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [&](const QItemSelection&, const QItemSelection& deselected) {
                seen.append(cells(deselected) + QLatin1String(" gone, left: ")
                            + selectedNames(*parts.tileView).join(QLatin1Char(' ')));
                mirrorInListView(parts);
            });
    parts.tileView->selectionModel()->select(selectionOf({{9, 13}}, parts.tileView->rootIndex()),
                                             selectRows);
    QCOMPARE(changed.count(), 5);
    QCOMPARE(
        seen,
        (QStringList{"d00011:0 gone, left: f00000 f00001", "d00010:0 gone, left: f00000 f00001",
                     "d00009:0 gone, left: f00000 f00001", " gone, left: f00000 f00001"}));
}

void tst_NestedSelectionRuns::matchPlainRecursionForManyDirectories_data()
{
    QTest::addColumn<Ranges>("ranges");
    QTest::addColumn<Qt::SortOrder>("order"); // descending, the file comes first
    QTest::addColumn<Ranges>("columns");
    addManyDirectories("as many as nest, and a file",
                       {{someDirectories, someDirectories}, {0, 255}});
    addManyDirectories("one more than nest", {{0, 256}});
    addManyDirectories("more, in several ranges",
                       {{200, 290}, {someDirectories - 1, someDirectories}, {3, 3}, {5, 175}});
    addManyDirectories("more, the first rows last", {{30, someDirectories}, {0, 2}});
    addManyDirectories("directories alone, in several ranges",
                       {{200, 290}, {295, 296}, {3, 3}, {5, 175}});
    addManyDirectories("a file, then more than nest", {{0, 257}}, Qt::DescendingOrder);
    addManyDirectories("more, names first", {{0, 258}}, Qt::AscendingOrder, {{0, 0}, {1, 3}});
    addManyDirectories("more, names and sizes first", {{0, 258}}, Qt::AscendingOrder,
                       {{0, 1}, {2, 3}});
}

void tst_NestedSelectionRuns::matchPlainRecursionForManyDirectories()
{
    QFETCH(Ranges, ranges);
    QFETCH(Qt::SortOrder, order);
    QFETCH(Ranges, columns);
    const Program program{
        m_some.path(), someDirectories + 1, {ranges}, doNothing, mirrorInListView, rows, order,
        columns};
    const QStringList expected = log<RecursiveBrowser>(program);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(log<ui::FileBrowserWidget>(program), expected);
}

void tst_NestedSelectionRuns::allOfManyDirectories_data()
{
    QTest::addColumn<Ranges>("ranges");
    QTest::addColumn<QString>("opened");
    QTest::addColumn<int>("mirrored"); // emissions that follow from the copy in the list view
    const QString last = Tree::names(QStringLiteral("d"), manyDirectories).constLast();
    QTest::newRow("directories alone") << Ranges{{0, manyDirectories - 1}} << last << 2;
    QTest::newRow("with a file") << Ranges{{0, manyDirectories}} << QString() << 1;
}

/// Plain recursion takes minutes, and the stack.
void tst_NestedSelectionRuns::allOfManyDirectories()
{
    QFETCH(Ranges, ranges);
    QFETCH(QString, opened);
    QFETCH(int, mirrored);
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.setAllowedDirs({m_large.path()});
    QVERIFY(loaded(*parts.tileView, manyDirectories + 1));

    std::ptrdiff_t deepest = 0;
    const char here = 0;
    QSignalSpy changed(&browser, &ui::FileBrowserWidget::selectionChanged);
    QSignalSpy changes(parts.tileView->selectionModel(), &QItemSelectionModel::selectionChanged);
    connect(&browser, &ui::FileBrowserWidget::selectionChanged, this, [&] {
        const char there = 0;
        deepest = qMax(deepest, std::abs(&here - &there));
    });
    int mostRanges = 0;
    connect(parts.tileView->selectionModel(), &QItemSelectionModel::selectionChanged, this, [&] {
        mostRanges = qMax(mostRanges, parts.tileView->selectionModel()->selection().size());
        mirrorInListView(parts);
    });
    parts.tileView->selectionModel()->select(selectionOf(ranges, parts.tileView->rootIndex()),
                                             selectRows);
    // Each range takes time at each further deselection.
    QVERIFY2(mostRanges <= nestedRuns + 2, qPrintable(QString::number(mostRanges)));
    QCOMPARE(changes.count(), manyDirectories + 1); // the selection and each deselection
    QCOMPARE(changed.count(), manyDirectories + 1 + mirrored);
    QCOMPARE(browser.currentPath(), m_large.path(opened));
    QCOMPARE(selectedNames(*parts.tileView).size(), opened.isEmpty() ? 1 : 0);
    QVERIFY2(deepest < stackForNesting, qPrintable(QString::number(deepest)));
}

void tst_NestedSelectionRuns::slotThatReadsTheSelectionOfManyDirectories()
{
    QWidget window;
    ui::FileBrowserWidget browser(&window);
    const BrowserParts parts(browser);
    browser.setAllowedDirs({m_large.path()});
    window.show();
    QVERIFY(loaded(*parts.tileView, manyDirectories + 1));

    QVector<int> sizes;
    connect(&browser, &ui::FileBrowserWidget::selectionChanged, this,
            [&] { sizes.append(browser.selectedFiles().size()); });
    parts.tileView->selectionModel()->select(
        selectionOf({{0, manyDirectories - 1}}, parts.tileView->rootIndex()), selectRows);
    QCOMPARE(sizes.size(), manyDirectories + 1);
    QCOMPARE(sizes.mid(0, 2), (QVector<int>{1, 0})); // the one that was opened, then nothing
    QCOMPARE(sizes.count(0), manyDirectories);
}

void tst_NestedSelectionRuns::browserDeletedAmongManyDirectories_data()
{
    QTest::addColumn<int>("emission");
    QTest::newRow("first") << 1;
    QTest::newRow("on the way back through the nested runs") << 100;
    QTest::newRow("first of those that do not nest") << 258;
    QTest::newRow("one of those that do not nest") << 5000;
    QTest::newRow("last") << manyDirectories + 1;
}

void tst_NestedSelectionRuns::browserDeletedAmongManyDirectories()
{
    QFETCH(int, emission);
    QPointer<ui::FileBrowserWidget> browser = new ui::FileBrowserWidget;
    const BrowserParts parts(*browser);
    browser->setAllowedDirs({m_large.path()});
    QVERIFY(loaded(*parts.tileView, manyDirectories + 1));
    int emissions = 0;
    connect(browser, &ui::FileBrowserWidget::selectionChanged, this, [&] {
        if (++emissions == emission)
            delete browser;
    });
    parts.tileView->selectionModel()->select(
        selectionOf({{0, manyDirectories}}, parts.tileView->rootIndex()), selectRows);
    QVERIFY(!browser);
    QCOMPARE(emissions, emission);
}

const test::Registration<tst_NestedSelectionRuns> registration;

#include "tst_NestedSelectionRuns.moc"
