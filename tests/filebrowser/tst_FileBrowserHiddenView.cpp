#include "BrowserParts.h"
#include "PlatformMessages.h"
#include "RecursiveBrowser.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"
#include "ui/FileSystemModel.h"

#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

#include <functional>

using namespace test;

namespace {

constexpr int manyFiles = 200; // more than a view shows at once

const QString longName = QString(20, QLatin1Char('w'));

using Use = std::function<void(const BrowserParts&)>;

/// The widths of the columns shown.
QVector<int> columnWidths(const QTreeView& view)
{
    return {view.columnWidth(0), view.columnWidth(1), view.columnWidth(3)};
}

/// Opens \a path and waits until the entries of it are there.
template <class Browser>
bool open(Browser& browser, const BrowserParts& parts, const QString& path)
{
    browser.setAllowedDirs({path});
    const int count = QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    const bool there = QTest::qWaitFor([&] { return shownNames(*parts.tileView).size() == count; });
    QCoreApplication::processEvents();
    return there;
}

/// What the list view of a \a Browser is like after each of \a uses.
template <class Browser>
QVector<QVector<int>> states(const QStringList& paths, const Use& use)
{
    Browser browser;
    const BrowserParts parts(browser);
    browser.resize(700, 400);
    browser.show();
    QVector<QVector<int>> result;
    for (const QString& path : paths) {
        if (!open(browser, parts, path))
            return {};
        use(parts);
        const QTreeView& view = *parts.listView;
        const int precision = view.header()->resizeContentsPrecision();
        result << columnWidths(view) << QVector<int>{precision, view.isVisible()};
        QCoreApplication::processEvents();
        result << columnWidths(view);
    }
    return result;
}

void showByItself(const BrowserParts& parts)
{
    parts.listView->show();
}

} // namespace

Q_DECLARE_METATYPE(Use)

/// The view that is not shown is as ready as the other, whoever shows it, and in whatever way.
class tst_FileBrowserHiddenView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listViewIsAsIfShownByItself_data();
    void listViewIsAsIfShownByItself();
    void hiddenColumnsFitTheContents();
    void precisionIsTheApplications();
    void savedStateIsTheHeadersOwn();
    void columnsFitInAnotherDirectory();

private:
    QString path(const char* directory) const
    {
        return m_tree.path(QString::fromLatin1(directory));
    }

    Tree m_tree;
};

void tst_FileBrowserHiddenView::initTestCase()
{
    dropPlatformMessages();
    m_tree.makeDir(QStringLiteral("short"));
    m_tree.makeDir(QStringLiteral("long"));
    m_tree.makeDir(QStringLiteral("many"));
    for (const QString& name : Tree::names(QStringLiteral("f"), manyFiles))
        m_tree.makeFile(QStringLiteral("many/") + name);
    m_tree.makeFile(QStringLiteral("many/g") + longName); // far from what a view shows first
    m_tree.makeFile(QStringLiteral("short/a"));
    m_tree.makeFile(QStringLiteral("long/a"));
    m_tree.makeFile(QStringLiteral("long/") + longName);
}

void tst_FileBrowserHiddenView::listViewIsAsIfShownByItself_data()
{
    const auto newRow = [](const char* name, const Use& use) { QTest::newRow(name) << use; };
    QTest::addColumn<Use>("use");
    newRow("stays hidden", [](const BrowserParts&) {});
    newRow("its own button", [](const BrowserParts& parts) { parts.listButton->click(); });
    newRow("both buttons", [](const BrowserParts& parts) {
        parts.listButton->click();
        parts.tileButton->click();
    });
    newRow("show()", showByItself);
    newRow("setVisible()", [](const BrowserParts& parts) { parts.listView->setVisible(true); });
    newRow("beside the tiles and hidden again", [](const BrowserParts& parts) {
        parts.listView->show();
        parts.listView->hide();
    });
    newRow("own precision, all rows", [](const BrowserParts& parts) {
        parts.listView->header()->setResizeContentsPrecision(-1);
        parts.listButton->click();
    });
    newRow("own precision, visible rows", [](const BrowserParts& parts) {
        parts.listView->header()->setResizeContentsPrecision(0);
        parts.listButton->click();
        parts.tileButton->click();
        parts.listButton->click();
    });
    newRow("saved state", [](const BrowserParts& parts) {
        const QByteArray state = parts.listView->header()->saveState();
        parts.listButton->click();
        parts.listView->header()->restoreState(state);
    });
    newRow("scrolled", [](const BrowserParts& parts) {
        parts.listButton->click();
        parts.listView->scrollToBottom();
    });
}

void tst_FileBrowserHiddenView::listViewIsAsIfShownByItself()
{
    QFETCH(Use, use);
    const QStringList paths{path("short"), path("long"), path("many"), path("short")};
    const QVector<QVector<int>> expected = states<RecursiveBrowser>(paths, use);
    const QVector<QVector<int>> actual = states<ui::FileBrowserWidget>(paths, use);
    QCOMPARE(expected.size(), 3 * paths.size());
    QCOMPARE(actual, expected);
}

void tst_FileBrowserHiddenView::hiddenColumnsFitTheContents()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.show();
    QVERIFY(open(browser, parts, path("many")));
    QVERIFY(!parts.listView->isVisible());
    const int width = parts.listView->fontMetrics().horizontalAdvance(longName);
    QTRY_VERIFY(parts.listView->columnWidth(0) > qMin(width, 349));
}

void tst_FileBrowserHiddenView::precisionIsTheApplications()
{
    constexpr int qtDefault = 1000;
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.show();
    const QHeaderView& header = *parts.listView->header();
    QCOMPARE(header.resizeContentsPrecision(), qtDefault);
    for (const int precision : {qtDefault, -1, 0, 17}) {
        parts.listView->header()->setResizeContentsPrecision(precision);
        for (QPushButton* button : {parts.listButton, parts.tileButton, parts.tileButton}) {
            button->click();
            QCOMPARE(header.resizeContentsPrecision(), precision);
        }
    }
}

void tst_FileBrowserHiddenView::savedStateIsTheHeadersOwn()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.show();
    const QByteArray state = parts.listView->header()->saveState();
    QTreeView other;
    other.setModel(parts.model);
    QVERIFY(other.header()->restoreState(state));
    QCOMPARE(other.header()->resizeContentsPrecision(),
             QTreeView().header()->resizeContentsPrecision());
}

void tst_FileBrowserHiddenView::columnsFitInAnotherDirectory()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.show();
    parts.listButton->click();
    QVERIFY(open(browser, parts, path("short")));
    const int narrow = parts.listView->columnWidth(0);

    parts.tileButton->click();
    QVERIFY(open(browser, parts, path("long")));
    parts.listButton->click();
    QTRY_VERIFY(parts.listView->columnWidth(0) > narrow);
    QVERIFY(parts.listView->columnWidth(0)
            > parts.listView->fontMetrics().horizontalAdvance(longName));
}

const test::Registration<tst_FileBrowserHiddenView> registration;

#include "tst_FileBrowserHiddenView.moc"
