#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "RecursiveBrowser.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"

#include <QItemSelectionModel>
#include <QRandomGenerator>
#include <QTreeView>

using namespace test;

namespace {

using Ranges = QVector<QPair<int, int>>; ///< First and last row of each.

/// What an application does in a slot of selectionChanged(), given the number of the emission.
using Slot = std::function<void(QListView& tileView, int emission)>;

constexpr auto selectRows = QItemSelectionModel::Select | QItemSelectionModel::Rows;

void doNothing(QListView&, int) { }

QItemSelection selectionOf(const Ranges& ranges, const QModelIndex& root)
{
    QItemSelection selection;
    for (const auto& range : ranges)
        selection.append({root.model()->index(range.first, 0, root),
                          root.model()->index(range.second, 0, root)});
    return selection;
}

struct Log
{
    QStringList emissions; ///< What an application sees whenever selectionChanged() is emitted.
    QStringList deselections; ///< What the selection model reports as gone, in order.

    void addEmission(const QListView& tileView, const QString& currentPath, const QString& barPath)
    {
        emissions.append(
            QStringLiteral("%1, bar %2: %3")
                .arg(currentPath, barPath, selectedNames(tileView).join(QLatin1Char(' '))));
    }

    void addDeselections(const QItemSelection& deselected)
    {
        const QModelIndexList indexes = deselected.indexes();
        for (const QModelIndex& index : indexes)
            deselections.append(
                QStringLiteral("%1:%2").arg(index.data().toString()).arg(index.column()));
    }
};

/// Makes the selections \a steps, one after the other.
void play(QListView& tileView, const QVector<Ranges>& steps)
{
    const QPersistentModelIndex root = tileView.rootIndex();
    for (const Ranges& ranges : steps)
        tileView.selectionModel()->select(selectionOf(ranges, root), selectRows);
    // Takes the last command of the selection model back, as Shift and a tap do.
    tileView.selectionModel()->select(root.model()->index(0, 0, root),
                                      selectRows | QItemSelectionModel::Current);
}

/// Waits until \a view shows \a count entries, sorted.
bool loaded(const QAbstractItemView& view, int count)
{
    return QTest::qWaitFor([&] {
        const QStringList names = shownNames(view);
        return names.size() == count && std::is_sorted(names.cbegin(), names.cend());
    });
}

Log browserLog(const QString& path, int count, const QVector<Ranges>& steps, const Slot& slot)
{
    Log log;
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.setAllowedDirs({path});
    if (!loaded(*parts.tileView, count))
        return log;
    QObject::connect(&browser, &ui::FileBrowserWidget::selectionChanged, &browser, [&] {
        log.addEmission(*parts.tileView, browser.currentPath(), lastCrumbPath(*parts.bar));
        slot(*parts.tileView, log.emissions.size());
    });
    QObject::connect(
        parts.tileView->selectionModel(), &QItemSelectionModel::selectionChanged, &browser,
        [&](const QItemSelection&, const QItemSelection& gone) { log.addDeselections(gone); });
    play(*parts.tileView, steps);
    return log;
}

Log recursiveLog(const QString& path, int count, const QVector<Ranges>& steps, const Slot& slot)
{
    Log log;
    RecursiveBrowser browser(path);
    if (!loaded(browser.tileView, count))
        return log;
    browser.selectionChanged = [&] {
        log.addEmission(browser.tileView, browser.currentPath(), browser.barPath());
        slot(browser.tileView, log.emissions.size());
    };
    browser.deselected = [&](const QItemSelection& gone) { log.addDeselections(gone); };
    play(browser.tileView, steps);
    return log;
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

/// A slot that meddles with the selection at the first few emissions, always the same way for a \a seed.
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
            QItemSelectionModel::NoUpdate, QItemSelectionModel::Clear, selectRows,
            selectRows | QItemSelectionModel::Clear,
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
    void onceForEachDirectoryAndOnceMore_data();
    void onceForEachDirectoryAndOnceMore();
    void thousandDirectories();
    void thousandDirectoriesWithASlotThatReadsTheSelection();

private:
    static constexpr int directoryCount = 12;
    static constexpr int fileCount = 8;

    Tree m_directories; ///< Directories alone.
    Tree m_mixed; ///< Directories first, as the model sorts, then files.
    Tree m_large; ///< A thousand directories.
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
    const QStringList many = Tree::names(QStringLiteral("d"), 1000);
    for (const QString& name : many)
        m_large.makeDir(name);
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
    QTest::newRow("two files and a directory") << QVector<Ranges>{{{14, 14}, {5, 5}, {13, 13}}};
    QTest::newRow("all") << QVector<Ranges>{{{0, 19}}};
    QTest::newRow("files, then a directory") << QVector<Ranges>{{{13, 15}}, {{2, 2}}};
    QTest::newRow("a directory, then files") << QVector<Ranges>{{{2, 2}}, {{13, 15}}};
    QTest::newRow("a directory, then another") << QVector<Ranges>{{{2, 2}}, {{5, 5}}};
}

void tst_NestedSelectionRuns::matchPlainRecursion()
{
    QFETCH(QVector<Ranges>, steps);
    const QString path = m_mixed.path();
    constexpr int count = directoryCount + fileCount;

    const Log expected = recursiveLog(path, count, steps, doNothing);
    const Log actual = browserLog(path, count, steps, doNothing);
    QVERIFY(!expected.emissions.isEmpty());
    QCOMPARE(actual.emissions, expected.emissions);
    QCOMPARE(actual.deselections, expected.deselections);
}

void tst_NestedSelectionRuns::matchPlainRecursionForAnySelection()
{
    QRandomGenerator random(1);
    for (int round = 0; round < 30; ++round) {
        const bool mixed = round % 2;
        const QString path = mixed ? m_mixed.path() : m_directories.path();
        const int count = directoryCount + (mixed ? fileCount : 0);
        const QVector<Ranges> steps{randomRanges(random, count), randomRanges(random, count)};

        const Log expected = recursiveLog(path, count, steps, doNothing);
        const Log actual = browserLog(path, count, steps, doNothing);
        QVERIFY(!expected.emissions.isEmpty());
        QCOMPARE(actual.emissions, expected.emissions);
    }
}

void tst_NestedSelectionRuns::matchPlainRecursionWhateverSlotsDo()
{
    QRandomGenerator random(2);
    for (quint32 round = 0; round < 50; ++round) {
        const bool mixed = round % 2;
        const QString path = mixed ? m_mixed.path() : m_directories.path();
        const int count = directoryCount + (mixed ? fileCount : 0);
        const QVector<Ranges> steps{randomRanges(random, count)};
        const Slot slot = randomSlot(round * 100, path);

        Log expected = recursiveLog(path, count, steps, slot);
        Log actual = browserLog(path, count, steps, slot);
        QVERIFY(!expected.emissions.isEmpty());
        QCOMPARE(actual.emissions, expected.emissions);
        // A slot's own change is reported to this test after the runs that it brings about.
        expected.deselections.sort();
        actual.deselections.sort();
        QCOMPARE(actual.deselections, expected.deselections);
    }
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

void tst_NestedSelectionRuns::thousandDirectories()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.setSelectionMode(ui::FileBrowserWidget::MultiSelection);
    browser.setAllowedDirs({m_large.path()});
    QVERIFY(loaded(*parts.tileView, 1000));

    QSignalSpy changed(&browser, &ui::FileBrowserWidget::selectionChanged);
    QSignalSpy changes(parts.tileView->selectionModel(), &QItemSelectionModel::selectionChanged);
    parts.tileView->selectAll(); // plain recursion takes minutes, and the stack
    QCOMPARE(changed.count(), 1001);
    QCOMPARE(changes.count(), 1001); // the selection and each deselection
    QCOMPARE(browser.currentPath(), m_large.path(QStringLiteral("d00999")));
    QCOMPARE(browser.selectedFiles(), QStringList());
}

void tst_NestedSelectionRuns::thousandDirectoriesWithASlotThatReadsTheSelection()
{
    QWidget window;
    ui::FileBrowserWidget browser(&window);
    const BrowserParts parts(browser);
    browser.setSelectionMode(ui::FileBrowserWidget::MultiSelection);
    browser.setAllowedDirs({m_large.path()});
    window.show();
    QVERIFY(loaded(*parts.tileView, 1000));

    QVector<int> sizes;
    connect(&browser, &ui::FileBrowserWidget::selectionChanged, this,
            [&] { sizes.append(browser.selectedFiles().size()); });
    parts.tileView->selectAll();
    QCOMPARE(sizes.size(), 1001);
    QCOMPARE(sizes.mid(0, 2), (QVector<int>{1, 0})); // the one that was opened, then nothing
    QCOMPARE(sizes.count(0), 1000);
}

const test::Registration<tst_NestedSelectionRuns> registration;

#include "tst_NestedSelectionRuns.moc"
