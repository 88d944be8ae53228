#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "ClickableLabel.h"
#include "EventCounter.h"
#include "NextMenu.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"
#include "XPointer.h"

#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTreeView>

#include <memory>

using namespace test;

namespace {

constexpr int longInterval = 10000; // milliseconds; xdotool is slow on a busy machine

/// Taps the entry \a name of \a view.
bool tapEntry(QAbstractItemView& view, const QString& name)
{
    const QModelIndex index = entry(view, name);
    view.scrollTo(index);
    return index.isValid() && XPointer::tap(*view.viewport(), view.visualRect(index).center());
}

} // namespace

/// The browser in a window of a real X server, used with the server's pointer.
class tst_FileBrowserTaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void openADirectoryAndComeBackByACrumb();
    void tremblingTap();
    void doubleTap();
    void comeBackByTheMenu();
    void switchViews();
    void pickAFile();
    void chooseAnotherRoot();
    void browserDeletedLaterByATap();
    void browserDeletedByACrumb();

private:
    bool open(const QString& name);
    bool showsCrumbs(const QStringList& expectedCrumbs) const;

    Tree m_tree;
    std::unique_ptr<QWidget> m_window;
    QPointer<ui::FileBrowserWidget> m_browser;
    std::unique_ptr<BrowserParts> m_parts;
};

void tst_FileBrowserTaps::initTestCase()
{
    m_tree.makeDir(QStringLiteral("top/a/b/c/d"));
    m_tree.makeFile(QStringLiteral("top/file"));
    m_tree.makeDir(QStringLiteral("other/inside"));
}

void tst_FileBrowserTaps::init()
{
    QApplication::setDoubleClickInterval(0); // however fast the taps of a test follow each other
    m_window = std::make_unique<QWidget>();
    m_browser = new ui::FileBrowserWidget(m_window.get());
    m_parts = std::make_unique<BrowserParts>(*m_browser);
    m_browser->setAllowedDirs(
        {m_tree.path(QStringLiteral("top")), m_tree.path(QStringLiteral("other"))});
    m_window->resize(900, 480);
    m_browser->setGeometry(m_window->rect());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_COMPARE(shownNames(*m_parts->tileView), (QStringList{"a", "file"}));
}

void tst_FileBrowserTaps::cleanup()
{
    m_window.reset();
}

/// Taps the directory \a name and waits until it is open.
bool tst_FileBrowserTaps::open(const QString& name)
{
    if (!QTest::qWaitFor([&] { return entry(*m_parts->tileView, name).isValid(); }))
        return false;
    const QString path = m_browser->currentPath() + QLatin1Char('/') + name;
    return tapEntry(*m_parts->tileView, name)
        && QTest::qWaitFor([&] { return m_browser->currentPath() == path; });
}

/// Whether the bar shows these crumbs and has laid them out.
bool tst_FileBrowserTaps::showsCrumbs(const QStringList& expectedCrumbs) const
{
    return QTest::qWaitFor([&] {
        const QList<ClickableLabel*> labels = crumbLabels(*m_parts->bar);
        return crumbs(*m_parts->bar) == expectedCrumbs && !labels.isEmpty()
            && labels.last()->isVisible() && labels.last()->x() > 0;
    });
}

void tst_FileBrowserTaps::openADirectoryAndComeBackByACrumb()
{
    QVERIFY(open(QStringLiteral("a")));
    QVERIFY(open(QStringLiteral("b")));
    QVERIFY(showsCrumbs({"a", "b"}));
    QVERIFY(XPointer::tap(*crumb(*m_parts->bar, QStringLiteral("a"))));
    QTRY_COMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("top/a")));
    QVERIFY(showsCrumbs({"a"}));
    QTRY_COMPARE(shownNames(*m_parts->tileView), QStringList{"b"});
}

void tst_FileBrowserTaps::tremblingTap()
{
    const QListView& view = *m_parts->tileView;
    EventCounter moves(view.viewport(), QEvent::MouseMove);
    EventCounter releases(view.viewport(), QEvent::MouseButtonRelease);
    const QPoint place =
        view.viewport()->mapToGlobal(view.visualRect(entry(view, QStringLiteral("a"))).center());
    QVERIFY(XPointer::press(place));
    QTRY_COMPARE(shownNames(view), QStringList{"b"});
    moves.take();
    QVERIFY(XPointer::move(place + QPoint(2, 2)));
    QVERIFY(QTest::qWaitFor([&] { return moves.take() > 0; }));
    QVERIFY(XPointer::release());
    QVERIFY(QTest::qWaitFor([&] { return releases.take() > 0; }));
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("top/a")));
}

void tst_FileBrowserTaps::doubleTap()
{
    // Elsewhere, so that the first tap is not the second one of another double tap.
    QVERIFY(tapEntry(*m_parts->tileView, QStringLiteral("file")));
    QApplication::setDoubleClickInterval(longInterval);
    EventCounter doubleClicks(m_parts->tileView->viewport(), QEvent::MouseButtonDblClick);
    const QPoint place = m_parts->tileView->visualRect(entry(*m_parts->tileView, "a")).center();
    QVERIFY(XPointer::tap(*m_parts->tileView->viewport(), place));
    QTRY_COMPARE(shownNames(*m_parts->tileView), QStringList{"b"});
    QVERIFY(XPointer::tap(*m_parts->tileView->viewport(), place));
    QVERIFY(QTest::qWaitFor([&] { return doubleClicks.take() > 0; }));
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("top/a")));
}

void tst_FileBrowserTaps::comeBackByTheMenu()
{
    for (const char* name : {"a", "b", "c", "d"})
        QVERIFY(open(QString::fromLatin1(name)));
    QVERIFY(showsCrumbs({"b", "c", "d"}));
    QTRY_VERIFY(moreButton(*m_parts->bar)->isVisible());

    whenMenuOpens(this, [](QMenu& menu) {
        XPointer::tap(menu, menu.actionGeometry(menu.actions().constFirst()).center());
    });
    QVERIFY(XPointer::tap(*moreButton(*m_parts->bar)));
    QTRY_COMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("top")) + "/a");
    QVERIFY(showsCrumbs({"a"}));
    QVERIFY(moreButton(*m_parts->bar)->isHidden());
}

void tst_FileBrowserTaps::switchViews()
{
    QVERIFY(XPointer::tap(*m_parts->listButton));
    QTRY_VERIFY(m_parts->listView->isVisible());
    QVERIFY(!m_parts->tileView->isVisible());
    QVERIFY(tapEntry(*m_parts->listView, QStringLiteral("a")));
    QTRY_COMPARE(m_browser->selectedFiles(), QStringList{m_tree.path(QStringLiteral("top/a"))});
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("top")));
    QVERIFY(XPointer::tap(*m_parts->tileButton));
    QTRY_VERIFY(m_parts->tileView->isVisible());
    QVERIFY(!m_parts->listView->isVisible());
}

void tst_FileBrowserTaps::pickAFile()
{
    QSignalSpy changed(m_browser, &ui::FileBrowserWidget::selectionChanged);
    QVERIFY(tapEntry(*m_parts->tileView, QStringLiteral("file")));
    QTRY_COMPARE(m_browser->selectedFiles(), QStringList{m_tree.path(QStringLiteral("top/file"))});
    QCOMPARE(changed.count(), 1);
}

void tst_FileBrowserTaps::chooseAnotherRoot()
{
    QVERIFY(open(QStringLiteral("a")));
    // Within this time the release of the tap that opens the pop-up chooses nothing from it.
    QApplication::setDoubleClickInterval(longInterval);
    QVERIFY(XPointer::tap(*m_parts->combo));
    QAbstractItemView* popup = m_parts->combo->view();
    QTRY_VERIFY(popup->isVisible() && popup->window()->windowHandle()->isExposed());
    QVERIFY(
        XPointer::tap(*popup->viewport(), popup->visualRect(popup->model()->index(1, 0)).center()));
    QTRY_COMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("other")));
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
    QTRY_COMPARE(shownNames(*m_parts->tileView), QStringList{"inside"});
}

void tst_FileBrowserTaps::browserDeletedLaterByATap()
{
    connect(m_browser, &ui::FileBrowserWidget::selectionChanged, m_browser, &QObject::deleteLater);
    QVERIFY(tapEntry(*m_parts->tileView, QStringLiteral("a")));
    QTRY_VERIFY(m_browser.isNull());
}

void tst_FileBrowserTaps::browserDeletedByACrumb()
{
    QVERIFY(open(QStringLiteral("a")));
    QVERIFY(showsCrumbs({"a"}));
    connect(m_parts->bar, &BreadCrumbsWidget::dirChanged, this, [this] { delete m_browser; });
    QVERIFY(XPointer::tap(*crumb(*m_parts->bar, QStringLiteral("a"))));
    QTRY_VERIFY(m_browser.isNull());
}

const test::Registration<tst_FileBrowserTaps> registration;

#include "tst_FileBrowserTaps.moc"
