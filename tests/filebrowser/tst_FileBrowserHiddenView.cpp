#include "BrowserParts.h"
#include "OffscreenMessages.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"

#include <QListView>
#include <QPushButton>
#include <QSet>
#include <QStyledItemDelegate>
#include <QTreeView>

using namespace test;

namespace {

constexpr int manyFiles = 200; // more than a view shows at once

const QString longName = QString(20, QLatin1Char('w'));

/// Notes of which rows a view measures the items.
class RecordingDelegate : public QStyledItemDelegate
{
public:
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        m_rows.insert(index.row());
        return QStyledItemDelegate::sizeHint(option, index);
    }
    QSet<int> rows() const
    {
        return m_rows;
    }

private:
    mutable QSet<int> m_rows;
};

} // namespace

/// What the view that is not shown costs, and that the user does not notice.
class tst_FileBrowserHiddenView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hiddenListViewMeasuresFewRows();
    void columnsFitWhenTheListViewIsShown();
    void columnsFitInAnotherDirectory();

private:
    /// Opens \a directory and waits until \a view shows \a count entries of it.
    void open(ui::FileBrowserWidget& browser, const QAbstractItemView& view,
              const QString& directory, int count) const;

    Tree m_tree;
};

void tst_FileBrowserHiddenView::initTestCase()
{
    dropOffscreenMessages();
    m_tree.makeDir(QStringLiteral("short"));
    m_tree.makeDir(QStringLiteral("long"));
    m_tree.makeDir(QStringLiteral("many"));
    for (const QString& name : Tree::names(QStringLiteral("f"), manyFiles))
        m_tree.makeFile(QStringLiteral("many/") + name);
    m_tree.makeFile(QStringLiteral("short/a"));
    m_tree.makeFile(QStringLiteral("long/a"));
    m_tree.makeFile(QStringLiteral("long/") + longName);
}

void tst_FileBrowserHiddenView::open(ui::FileBrowserWidget& browser, const QAbstractItemView& view,
                                     const QString& directory, int count) const
{
    browser.setAllowedDirs({m_tree.path(directory)});
    QTRY_COMPARE(shownNames(view).size(), count);
    QCoreApplication::processEvents();
}

void tst_FileBrowserHiddenView::hiddenListViewMeasuresFewRows()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    RecordingDelegate delegate;
    parts.listView->setItemDelegate(&delegate);
    browser.show();
    open(browser, *parts.tileView, QStringLiteral("many"), manyFiles);
    QVERIFY(
        !parts.tileView->visualRect(entry(*parts.tileView, QStringLiteral("f00000"))).isEmpty());
    QVERIFY2(delegate.rows().size() < manyFiles / 2,
             qPrintable(QString::number(delegate.rows().size())));

    parts.listButton->click();
    QTRY_COMPARE(delegate.rows().size(), manyFiles);
}

void tst_FileBrowserHiddenView::columnsFitWhenTheListViewIsShown()
{
    ui::FileBrowserWidget shownBefore;
    const BrowserParts expected(shownBefore);
    expected.listButton->click();
    shownBefore.show();
    open(shownBefore, *expected.listView, QStringLiteral("long"), 2);

    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.show();
    open(browser, *parts.tileView, QStringLiteral("long"), 2);
    parts.listButton->click();
    QTRY_COMPARE(parts.listView->columnWidth(0), expected.listView->columnWidth(0));
    QCOMPARE(parts.listView->columnWidth(1), expected.listView->columnWidth(1));
    QVERIFY(parts.listView->columnWidth(0)
            > parts.listView->fontMetrics().horizontalAdvance(longName));
}

void tst_FileBrowserHiddenView::columnsFitInAnotherDirectory()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.show();
    parts.listButton->click();
    open(browser, *parts.listView, QStringLiteral("short"), 1);
    const int narrow = parts.listView->columnWidth(0);

    parts.tileButton->click();
    open(browser, *parts.tileView, QStringLiteral("long"), 2);
    parts.listButton->click();
    QTRY_VERIFY(parts.listView->columnWidth(0) > narrow);
    QVERIFY(parts.listView->columnWidth(0)
            > parts.listView->fontMetrics().horizontalAdvance(longName));
}

const test::Registration<tst_FileBrowserHiddenView> registration;

#include "tst_FileBrowserHiddenView.moc"
