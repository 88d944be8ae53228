#include "BrowserParts.h"
#include "EventCounter.h"
#include "PlatformMessages.h"
#include "RecursiveBrowser.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"

#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <functional>

using namespace test;

namespace {

constexpr int manyFiles = 200; // more than a view shows at once

using Step = std::function<void(const BrowserParts&)>;

void showTiles(const BrowserParts& parts)
{
    parts.tileButton->click();
}

void showList(const BrowserParts& parts)
{
    parts.listButton->click();
}

void scroll(const BrowserParts& parts)
{
    QAbstractScrollArea* view = parts.tileView;
    if (parts.listView->isVisible())
        view = parts.listView;
    for (QScrollBar* bar : {view->verticalScrollBar(), view->horizontalScrollBar()})
        bar->setValue(bar->maximum() / 2);
}

/// Deletes \a doomed when \a watched gets an event of a type.
class Deleter : public QObject
{
    Q_OBJECT

public:
    Deleter(QObject* watched, QEvent::Type type, QWidget* doomed)
        : m_type(type)
        , m_doomed(doomed)
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != m_type)
            return QObject::eventFilter(watched, event);
        delete m_doomed;
        return true;
    }

private:
    QEvent::Type m_type;
    QPointer<QWidget> m_doomed;
};

/// A browser in a window, with what a user sees of it.
template <class Browser>
struct Shown
{
    Shown(const QString& path, const QSize& size, bool inWindow)
        : browser(inWindow ? new Browser(&window) : new Browser(nullptr))
        , parts(*browser)
        , top(inWindow ? window : *browser)
    {
        if (inWindow) {
            auto* layout = new QVBoxLayout(&window);
            layout->addWidget(browser);
        } else {
            owner.reset(browser);
        }
        top.resize(size);
        top.show();
        browser->setAllowedDirs({path});
    }

    QStringList state()
    {
        const QString geometry = QStringLiteral("%1 %2x%3+%4+%5");
        const auto describe = [&](const QWidget& widget) {
            return geometry.arg(QString::fromLatin1(widget.metaObject()->className()))
                .arg(widget.width())
                .arg(widget.height())
                .arg(widget.x())
                .arg(widget.y());
        };
        QStringList result{QStringLiteral("%1x%2").arg(top.width()).arg(top.height())};
        const QList<QWidget*> widgets = browser->template findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (widget->isVisible())
                result.append(describe(*widget));
        }
        for (int column = 0; column < 4 && parts.listView->isVisible(); ++column)
            result.append(QString::number(parts.listView->columnWidth(column)));
        const QList<QScrollBar*> bars = browser->template findChildren<QScrollBar*>();
        for (const QScrollBar* bar : bars) {
            if (!bar->parentWidget()->isVisible())
                continue;
            result.append(QStringLiteral("%1 of %2").arg(bar->value()).arg(bar->maximum()));
        }
        const QWidget* focus = browser->focusWidget();
        result.append(focus ? QString::fromLatin1(focus->metaObject()->className()) : QString());
        return result;
    }

    QWidget window;
    Browser* browser;
    std::unique_ptr<QWidget> owner;
    BrowserParts parts;
    QWidget& top;
};

} // namespace

/// The two view buttons, compared with views that are simply shown and hidden.
class tst_FileBrowserViewSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void looksAsIfSimplyShownAndHidden_data();
    void looksAsIfSimplyShownAndHidden();
    void tilesAreResizedOnce();
    void orderOfTheCalls();
    void disabledLayoutStaysDisabled();
    void noLayout();
    void hiddenBrowserIsNotLaidOut();
    void browserDeletedInBetween_data();
    void browserDeletedInBetween();

private:
    Tree m_tree;
};

void tst_FileBrowserViewSwitch::initTestCase()
{
    dropPlatformMessages();
    m_tree.makeDir(QStringLiteral("empty"));
    m_tree.makeDir(QStringLiteral("many"));
    m_tree.makeDir(QStringLiteral("few/directory"));
    m_tree.makeFile(QStringLiteral("few/file"));
    for (const QString& name : Tree::names(QStringLiteral("f"), manyFiles))
        m_tree.makeFile(QStringLiteral("many/") + name);
}

void tst_FileBrowserViewSwitch::looksAsIfSimplyShownAndHidden_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<int>("count");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("inWindow");
    const QVector<QPair<QString, int>> directories{{QStringLiteral("empty"), 0},
                                                   {QStringLiteral("few"), 2},
                                                   {QStringLiteral("many"), manyFiles}};
    for (const auto& directory : directories) {
        for (const QSize& size : {QSize(800, 480), QSize(320, 240), QSize(200, 120)}) {
            for (const bool inWindow : {false, true})
                QTest::addRow("%s, %dx%d, %s", qPrintable(directory.first), size.width(),
                              size.height(), inWindow ? "in a window" : "a window")
                    << directory.first << directory.second << size << inWindow;
        }
    }
}

void tst_FileBrowserViewSwitch::looksAsIfSimplyShownAndHidden()
{
    QFETCH(QString, directory);
    QFETCH(int, count);
    QFETCH(QSize, size);
    QFETCH(bool, inWindow);
    Shown<RecursiveBrowser> expected(m_tree.path(directory), size, inWindow);
    Shown<ui::FileBrowserWidget> actual(m_tree.path(directory), size, inWindow);
    QTRY_COMPARE(shownNames(*expected.parts.tileView).size(), count);
    QTRY_COMPARE(shownNames(*actual.parts.tileView).size(), count);
    const QVector<Step> steps{showList, showTiles, showTiles, showList, scroll,
                              showList, showTiles, scroll,    showList, showTiles};
    for (const Step& step : steps) {
        step(expected.parts);
        step(actual.parts);
        const bool same = QTest::qWaitFor([&] { return actual.state() == expected.state(); });
        if (!same)
            QCOMPARE(actual.state(), expected.state());
        QTRY_COMPARE(actual.top.grab().toImage(), expected.top.grab().toImage());
    }
}

void tst_FileBrowserViewSwitch::tilesAreResizedOnce()
{
    Shown<ui::FileBrowserWidget> shown(m_tree.path(QStringLiteral("many")), {800, 480}, false);
    showList(shown.parts);
    QCoreApplication::processEvents();
    EventCounter resizes(shown.parts.tileView, QEvent::Resize);
    EventCounter listResizes(shown.parts.listView, QEvent::Resize);
    showTiles(shown.parts);
    QCOMPARE(resizes.take(), 0); // as high as before
    QCOMPARE(listResizes.take(), 0);
    showList(shown.parts);
    shown.top.resize(700, 300);
    QCoreApplication::processEvents();
    resizes.take();
    showTiles(shown.parts);
    QCOMPARE(resizes.take(), 1);
}

void tst_FileBrowserViewSwitch::orderOfTheCalls()
{
    Shown<ui::FileBrowserWidget> shown(m_tree.path(QStringLiteral("few")), {800, 480}, false);
    showList(shown.parts);
    QStringList order;
    class Recorder : public QObject
    {
    public:
        explicit Recorder(QStringList& order)
            : m_order(order)
        {
        }
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
                m_order.append(QLatin1String(watched->metaObject()->className())
                               + (event->type() == QEvent::ShowToParent
                                      ? QLatin1String(" shown")
                                      : QLatin1String(" hidden")));
            return false;
        }

    private:
        QStringList& m_order;
    } recorder(order);
    shown.parts.tileView->installEventFilter(&recorder);
    shown.parts.listView->installEventFilter(&recorder);
    showTiles(shown.parts);
    QCOMPARE(order, (QStringList{"QListView shown", "QTreeView hidden"}));
    order.clear();
    showList(shown.parts);
    QCOMPARE(order, (QStringList{"QListView hidden", "QTreeView shown"}));
}

void tst_FileBrowserViewSwitch::disabledLayoutStaysDisabled()
{
    Shown<ui::FileBrowserWidget> shown(m_tree.path(QStringLiteral("few")), {800, 480}, false);
    QCoreApplication::processEvents();
    const QRect tiles = shown.parts.tileView->geometry();
    shown.browser->layout()->setEnabled(false);
    shown.parts.tileView->resize(100, 50);
    for (const auto step : {showList, showTiles}) {
        step(shown.parts);
        QVERIFY(!shown.browser->layout()->isEnabled());
        QCOMPARE(shown.parts.tileView->size(), QSize(100, 50));
    }
    shown.browser->layout()->setEnabled(true);
    showList(shown.parts);
    QVERIFY(shown.browser->layout()->isEnabled());
    showTiles(shown.parts);
    QTRY_COMPARE(shown.parts.tileView->geometry(), tiles);
}

void tst_FileBrowserViewSwitch::noLayout()
{
    Shown<ui::FileBrowserWidget> shown(m_tree.path(QStringLiteral("few")), {800, 480}, false);
    delete shown.browser->layout();
    showList(shown.parts);
    QVERIFY(shown.parts.listView->isVisible());
    QVERIFY(!shown.parts.tileView->isVisible());
}

void tst_FileBrowserViewSwitch::hiddenBrowserIsNotLaidOut()
{
    ui::FileBrowserWidget browser;
    const BrowserParts parts(browser);
    browser.resize(600, 400);
    const QRect before = parts.tileView->geometry();
    showTiles(parts);
    QCOMPARE(parts.tileView->geometry(), before);
    QVERIFY(browser.layout()->isEnabled());
}

void tst_FileBrowserViewSwitch::browserDeletedInBetween_data()
{
    QTest::addColumn<bool>("tiles");
    QTest::newRow("tile button") << true;
    QTest::newRow("list button") << false;
}

void tst_FileBrowserViewSwitch::browserDeletedInBetween()
{
    QFETCH(bool, tiles);
    auto* browser = new ui::FileBrowserWidget;
    const QPointer<QWidget> guard(browser);
    const BrowserParts parts(*browser);
    browser->show();
    if (tiles)
        showList(parts);
    // The last event of being shown or hidden; deleted any earlier, Qt itself would stumble.
    const Deleter deleter(parts.tileView, tiles ? QEvent::ShowToParent : QEvent::HideToParent,
                          browser);
    (tiles ? parts.tileButton : parts.listButton)->click();
    QVERIFY(!guard);
}

const test::Registration<tst_FileBrowserViewSwitch> registration;

#include "tst_FileBrowserViewSwitch.moc"
