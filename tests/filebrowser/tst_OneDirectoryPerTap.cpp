#include "BrowserParts.h"
#include "EventCounter.h"
#include "PlatformMessages.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"
#include "ui/FileSystemModel.h"

#include <QListView>
#include <QTreeView>

#include <memory>

using namespace test;
using ui::FileBrowserWidget;

namespace {

enum Input { Mouse, Touch };

constexpr QPoint tremor(2, 2); // pixels; below any distance that starts a drag

} // namespace

/// What a tap does after it has opened a directory, with the window system's own events.
class tst_OneDirectoryPerTap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void tremblingTap_data();
    void tremblingTap();
    void doubleTap_data();
    void doubleTap();
    void nextTapOpensTheNextDirectory_data();
    void nextTapOpensTheNextDirectory();
    void anotherButtonWhileTheFirstIsDown();
    void dragOntoADirectory();
    void dragFromADirectoryThatIsGone();
    void dragOverFiles();
    void dragOverFilesAfterATap();
    void doubleTapOnAFile();
    void directoryOpenedByTheProgram();
    void moveWithoutAButton();

private:
    void addInputs();
    void start();
    QPoint place(const QString& name) const;
    void press(Qt::MouseButton button = Qt::LeftButton);
    void move(const QPoint& position);
    void release(Qt::MouseButton button = Qt::LeftButton);
    void tap();

    QString path(const QString& relative = QString()) const
    {
        return m_tree.path(relative);
    }

    Tree m_tree;
    decltype(QTest::createTouchDevice()) m_touchScreen = nullptr;
    std::unique_ptr<FileBrowserWidget> m_browser;
    std::unique_ptr<BrowserParts> m_parts;
    Input m_input = Mouse;
    QPoint m_position; ///< In the window.
};

void tst_OneDirectoryPerTap::initTestCase()
{
    dropPlatformMessages();
    // Never deleted, as Qt may use it for the rest of the process.
    static auto* const touchScreen = QTest::createTouchDevice();
    m_touchScreen = touchScreen;
    m_tree.makeDir(QStringLiteral("a/a/a/a"));
    for (const char* name : {"f1", "f2", "f3", "f4"}) {
        m_tree.makeFile(QString::fromLatin1(name));
        m_tree.makeFile(QStringLiteral("a/") + QString::fromLatin1(name));
    }
}

void tst_OneDirectoryPerTap::init()
{
    m_input = Mouse;
    m_browser = std::make_unique<FileBrowserWidget>(nullptr);
    m_parts = std::make_unique<BrowserParts>(*m_browser);
    m_browser->resize(600, 400);
    m_browser->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_browser.get()));
    // Each level has been read before, so that a tap finds its entries there at once.
    for (const char* level : {"a/a/a", "a/a", "a", ""}) {
        m_browser->setRootPath(path(QString::fromLatin1(level)));
        QTRY_VERIFY(entry(*m_parts->tileView, QStringLiteral("a")).isValid());
    }
    QTRY_COMPARE(shownNames(*m_parts->tileView), (QStringList{"a", "f1", "f2", "f3", "f4"}));
    QCoreApplication::processEvents();
    m_position = place(QStringLiteral("a"));
}

void tst_OneDirectoryPerTap::cleanup()
{
    m_browser.reset();
}

void tst_OneDirectoryPerTap::addInputs()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("mode");
    QTest::newRow("mouse, single") << int(Mouse) << int(FileBrowserWidget::SingleSelection);
    QTest::newRow("mouse, multiple") << int(Mouse) << int(FileBrowserWidget::MultiSelection);
    QTest::newRow("touch, single") << int(Touch) << int(FileBrowserWidget::SingleSelection);
    QTest::newRow("touch, multiple") << int(Touch) << int(FileBrowserWidget::MultiSelection);
}

void tst_OneDirectoryPerTap::start()
{
    QFETCH(int, input);
    QFETCH(int, mode);
    m_input = Input(input);
    m_browser->setSelectionMode(FileBrowserWidget::SelectionMode(mode));
}

/// The middle of the entry \a name, in the window.
QPoint tst_OneDirectoryPerTap::place(const QString& name) const
{
    const QListView& view = *m_parts->tileView;
    return view.viewport()->mapTo(m_browser.get(), view.visualRect(entry(view, name)).center());
}

void tst_OneDirectoryPerTap::press(Qt::MouseButton button)
{
    if (m_input == Touch)
        QTest::touchEvent(m_browser->windowHandle(), m_touchScreen)
            .press(0, m_position, m_browser->windowHandle());
    else
        QTest::mousePress(m_browser->windowHandle(), button, {}, m_position);
}

void tst_OneDirectoryPerTap::move(const QPoint& position)
{
    m_position = position;
    if (m_input == Touch)
        QTest::touchEvent(m_browser->windowHandle(), m_touchScreen)
            .move(0, m_position, m_browser->windowHandle());
    else
        QTest::mouseMove(m_browser->windowHandle(), m_position);
    QCoreApplication::processEvents();
}

void tst_OneDirectoryPerTap::release(Qt::MouseButton button)
{
    if (m_input == Touch)
        QTest::touchEvent(m_browser->windowHandle(), m_touchScreen)
            .release(0, m_position, m_browser->windowHandle());
    else
        QTest::mouseRelease(m_browser->windowHandle(), button, {}, m_position);
}

void tst_OneDirectoryPerTap::tap()
{
    press();
    release();
}

void tst_OneDirectoryPerTap::tremblingTap_data()
{
    addInputs();
}

void tst_OneDirectoryPerTap::tremblingTap()
{
    start();
    QSignalSpy changed(m_browser.get(), &FileBrowserWidget::selectionChanged);
    press();
    for (const QPoint& step : {tremor, -tremor, tremor})
        move(m_position + step);
    release();
    QCOMPARE(m_browser->currentPath(), path(QStringLiteral("a")));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_browser->selectedFiles(), QStringList(path(QStringLiteral("a"))));
}

void tst_OneDirectoryPerTap::doubleTap_data()
{
    addInputs();
}

void tst_OneDirectoryPerTap::doubleTap()
{
    start();
    QSignalSpy changed(m_browser.get(), &FileBrowserWidget::selectionChanged);
    if (m_input == Mouse) {
        QTest::mouseDClick(m_browser->windowHandle(), Qt::LeftButton, {}, m_position);
    } else {
        tap();
        press();
        move(m_position + tremor);
        release();
    }
    QCOMPARE(m_browser->currentPath(), path(QStringLiteral("a")));
    QCOMPARE(changed.count(), 1);
}

void tst_OneDirectoryPerTap::nextTapOpensTheNextDirectory_data()
{
    addInputs();
}

void tst_OneDirectoryPerTap::nextTapOpensTheNextDirectory()
{
    start();
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    for (const char* level : {"a", "a/a", "a/a/a"}) {
        tap();
        QCOMPARE(m_browser->currentPath(), path(QString::fromLatin1(level)));
    }
    QApplication::setDoubleClickInterval(interval);
}

void tst_OneDirectoryPerTap::anotherButtonWhileTheFirstIsDown()
{
    press();
    press(Qt::RightButton);
    release(Qt::RightButton);
    move(m_position + tremor);
    release();
    QCOMPARE(m_browser->currentPath(), path(QStringLiteral("a")));
}

void tst_OneDirectoryPerTap::dragOntoADirectory()
{
    const QPoint directory = m_position;
    m_position = place(QStringLiteral("f2"));
    press();
    move(directory);
    QCOMPARE(m_browser->currentPath(), path(QStringLiteral("a")));
    move(directory + tremor);
    release();
    QCOMPARE(m_browser->currentPath(), path(QStringLiteral("a")));
}

/// The tap has opened nothing: the drag selects as ever. Qt 6's model opens what it remembers.
void tst_OneDirectoryPerTap::dragFromADirectoryThatIsGone()
{
    constexpr bool opens = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0);
    const QPoint directory = m_position;
    m_tree.makeDir(QStringLiteral("b"));
    QTRY_VERIFY(entry(*m_parts->tileView, QStringLiteral("b")).isValid());
    QCoreApplication::processEvents();
    m_position = place(QStringLiteral("b"));
    QVERIFY(QDir().rmdir(path(QStringLiteral("b"))));
    press();
    QCOMPARE(m_browser->currentPath(), opens ? path(QStringLiteral("b")) : path());
    move(directory);
    release();
    QCOMPARE(m_browser->currentPath(), path(QLatin1String(opens ? "b" : "a")));
}

void tst_OneDirectoryPerTap::dragOverFiles()
{
    m_browser->setSelectionMode(FileBrowserWidget::MultiSelection);
    m_position = place(QStringLiteral("f1"));
    press();
    for (const char* name : {"f2", "f3", "f4"})
        move(place(QString::fromLatin1(name)));
    release();
    QCOMPARE(selectedNames(*m_parts->tileView), (QStringList{"f1", "f2", "f3", "f4"}));
}

void tst_OneDirectoryPerTap::dragOverFilesAfterATap()
{
    tap();
    QCOMPARE(m_browser->currentPath(), path(QStringLiteral("a")));
    dragOverFiles();
}

void tst_OneDirectoryPerTap::doubleTapOnAFile()
{
    QSignalSpy doubleClicked(m_parts->tileView, &QListView::doubleClicked);
    m_position = place(QStringLiteral("f2"));
    QTest::mouseDClick(m_browser->windowHandle(), Qt::LeftButton, {}, m_position);
    QCOMPARE(doubleClicked.count(), 1);
}

void tst_OneDirectoryPerTap::directoryOpenedByTheProgram()
{
    m_input = Touch; // QTest lets no two clicks of a mouse be a double click
    m_position = place(QStringLiteral("f2"));
    EventCounter doubleClicks(m_parts->tileView->viewport(), QEvent::MouseButtonDblClick);
    tap();
    selectEntries(*m_parts->tileView, {"a"});
    QCOMPARE(m_browser->currentPath(), path(QStringLiteral("a")));
    tap(); // a double click, but not of a tap that has opened anything
    QCOMPARE(doubleClicks.take(), 1);
    QCOMPARE(m_browser->selectedFiles(), QStringList(path(QStringLiteral("a/f2"))));
}

void tst_OneDirectoryPerTap::moveWithoutAButton()
{
    m_parts->tileView->setMouseTracking(true);
    tap();
    QSignalSpy entered(m_parts->tileView, &QListView::entered);
    move(place(QStringLiteral("f2")));
    QCOMPARE(entered.count(), 1);
}

const test::Registration<tst_OneDirectoryPerTap> registration;

#include "tst_OneDirectoryPerTap.moc"
