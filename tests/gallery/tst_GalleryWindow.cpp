#include "Appearance.h"
#include "GalleryWindow.h"
#include "properties/PropertyEditor.h"
#include "SampleWidget.h"
#include "StyleSheetFile.h"
#include "TestApplication.h"
#include "TouchStyle.h"

#include <Switch.h>

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

namespace {

template <typename Page>
GalleryPage* make(QWidget* parent)
{
    return new Page(parent);
}

class TallPage : public GalleryPage
{
public:
    explicit TallPage(QWidget* parent)
        : GalleryPage(parent)
    {
        setMinimumHeight(2000);
    }
};

QVector<PageEntry> testPages()
{
    return {
        {QStringLiteral("samples"), QStringLiteral("SampleWidgets"), make<test::SamplePage>, {}},
        {QStringLiteral("empty"), QStringLiteral("Empty"), make<test::EmptyPage>, {}},
        {QStringLiteral("tall"), QStringLiteral("Tall"), make<TallPage>, {}}};
}

/// A gallery on a stage, which keeps the platform from being asked for more than a plain window.
struct Gallery
{
    explicit Gallery(const QString& styleSheet = QString(),
                     const QVector<PageEntry>& pages = testPages())
        : window(pages, styleSheet, &stage)
    {
        stage.resize(window.size());
        stage.show();
        QVERIFY(QTest::qWaitForWindowActive(&stage));
    }

    Switch* box(const char* name)
    {
        return window.findChild<Switch*>(QString::fromLatin1(name));
    }

    void chooseTool(const QString& name)
    {
        window.findChild<QComboBox*>(QStringLiteral("toolChoice"))->setCurrentText(name);
    }

    PropertyEditor* properties()
    {
        return window.findChild<PropertyEditor*>();
    }
    QListWidget* list()
    {
        return window.findChild<QListWidget*>(QStringLiteral("pageList"));
    }
    QWidget* demoWidget(int index)
    {
        return window.page()->demoWidgets().at(index).widget;
    }

    QWidget stage;
    GalleryWindow window;
};

/// A click by way of the native window, as from the screen.
void tap(QWidget* widget)
{
    const QPoint position = widget->mapTo(widget->window(), widget->rect().center());
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {}, position);
}

} // namespace

class tst_GalleryWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void fitsScreen();
    void controlsHaveTouchSize();
    void listsPages();
    void showsPageById();
    void makesPageAnew();
    void worksWithoutPages();
    void turnsDark();
    void turnsDarkUnderStyleSheet();
    void turnsRightToLeft();
    void disablesPageAlone();
    void newPageKeepsSwitches();
    void switchesExampleStyleSheet();
    void startsWithGivenStyleSheet();
    void tapPicksDemoWidget();
    void tapOnChildPicksDemoWidget();
    void tapOnDisabledDemoWidgetPicksIt();
    void tabPicksDemoWidget();
    void tapElsewherePicksNothing();
    void hidesProperties();
    void hidesPropertiesOfPageWithoutDemoWidgets();
};

void tst_GalleryWindow::initTestCase()
{
    TouchStyle::install();
}

void tst_GalleryWindow::init()
{
    Appearance().applyToApplication();
}

void tst_GalleryWindow::fitsScreen()
{
    Gallery gallery;
    QCOMPARE(gallery.window.size(), QSize(800, 480));
    const QSize least = gallery.window.minimumSizeHint();
    QVERIFY(least.width() <= 800 && least.height() <= 480);
}

void tst_GalleryWindow::controlsHaveTouchSize()
{
    Gallery gallery;
    for (const Switch* box : gallery.window.findChildren<Switch*>())
        QVERIFY2(box->height() >= 44 && box->width() >= 44, qPrintable(box->objectName()));
    QVERIFY(gallery.list()->visualItemRect(gallery.list()->item(0)).height() >= 44);
}

void tst_GalleryWindow::listsPages()
{
    Gallery gallery;
    QCOMPARE(gallery.list()->count(), 3);
    QCOMPARE(gallery.list()->item(1)->text(), QStringLiteral("Empty"));
    QVERIFY(qobject_cast<test::SamplePage*>(gallery.window.page()));

    const QRect item = gallery.list()->visualItemRect(gallery.list()->item(1));
    QTest::mouseClick(gallery.list()->viewport(), Qt::LeftButton, {}, item.center());
    QVERIFY(qobject_cast<test::EmptyPage*>(gallery.window.page()));
}

void tst_GalleryWindow::showsPageById()
{
    Gallery gallery;
    gallery.window.showPage(QStringLiteral("tall"));
    QCOMPARE(gallery.list()->currentRow(), 2);
    QVERIFY(dynamic_cast<TallPage*>(gallery.window.page()));
    gallery.window.showPage(QStringLiteral("no such page"));
    QCOMPARE(gallery.list()->currentRow(), 2);
}

void tst_GalleryWindow::makesPageAnew()
{
    Gallery gallery;
    const QPointer<GalleryPage> before = gallery.window.page();
    gallery.demoWidget(0)->setProperty("level", 3);
    gallery.window.showPage(QStringLiteral("tall"));
    QVERIFY(!before);
    gallery.window.showPage(QStringLiteral("samples"));
    QCOMPARE(gallery.demoWidget(0)->property("level").toInt(), 50);
    QCOMPARE(gallery.properties()->target(), gallery.demoWidget(0));
}

void tst_GalleryWindow::worksWithoutPages()
{
    Gallery gallery(QString(), {});
    QVERIFY(!gallery.window.page());
    gallery.box("disabledSwitch")->click();
    gallery.box("darkSwitch")->click();
    gallery.window.showPage(QStringLiteral("tall"));
    tap(&gallery.window);
    QVERIFY(!gallery.window.page());
}

void tst_GalleryWindow::turnsDark()
{
    Gallery gallery;
    QCOMPARE(gallery.demoWidget(0)->palette().color(QPalette::Window),
             Appearance::lightPalette().color(QPalette::Window));
    // Qt 6 posts the change of the application's palette to the widgets.
    gallery.box("darkSwitch")->click();
    QTRY_COMPARE(gallery.demoWidget(0)->palette().color(QPalette::Window),
                 Appearance::darkPalette().color(QPalette::Window));
    gallery.box("darkSwitch")->click();
    QTRY_COMPARE(gallery.demoWidget(0)->palette().color(QPalette::Window),
                 Appearance::lightPalette().color(QPalette::Window));
}

void tst_GalleryWindow::turnsDarkUnderStyleSheet()
{
    Gallery gallery;
    gallery.box("styleSheetSwitch")->click();
    gallery.box("darkSwitch")->click();
    for (const QWidget* widget : {static_cast<QWidget*>(gallery.list()), gallery.demoWidget(0)}) {
        QCOMPARE(widget->palette().color(QPalette::Base),
                 Appearance::darkPalette().color(QPalette::Base));
    }
    QCOMPARE(qApp->styleSheet(), exampleStyleSheet());
}

void tst_GalleryWindow::turnsRightToLeft()
{
    Gallery gallery;
    gallery.box("rightToLeftSwitch")->click();
    QCOMPARE(gallery.demoWidget(0)->layoutDirection(), Qt::RightToLeft);
    gallery.box("rightToLeftSwitch")->click();
    QCOMPARE(gallery.demoWidget(0)->layoutDirection(), Qt::LeftToRight);
}

void tst_GalleryWindow::disablesPageAlone()
{
    Gallery gallery;
    gallery.box("disabledSwitch")->click();
    QVERIFY(!gallery.demoWidget(0)->isEnabled());
    QVERIFY(gallery.properties()->isEnabled());
    QVERIFY(gallery.list()->isEnabled());
    gallery.box("disabledSwitch")->click();
    QVERIFY(gallery.demoWidget(0)->isEnabled());
}

void tst_GalleryWindow::newPageKeepsSwitches()
{
    Gallery gallery;
    gallery.box("disabledSwitch")->click();
    gallery.window.showPage(QStringLiteral("tall"));
    QVERIFY(!gallery.window.page()->isEnabled());
}

void tst_GalleryWindow::switchesExampleStyleSheet()
{
    Gallery gallery;
    QVERIFY(!gallery.box("styleSheetSwitch")->isChecked());
    gallery.box("styleSheetSwitch")->click();
    QCOMPARE(qApp->styleSheet(), exampleStyleSheet());
    gallery.box("styleSheetSwitch")->click();
    QCOMPARE(qApp->styleSheet(), QString());
}

void tst_GalleryWindow::startsWithGivenStyleSheet()
{
    const QString styleSheet = QStringLiteral("QPushButton { min-height: 99px; }");
    Gallery gallery(styleSheet);
    QVERIFY(gallery.box("styleSheetSwitch")->isChecked());
    QCOMPARE(qApp->styleSheet(), styleSheet);
    gallery.box("styleSheetSwitch")->click();
    QCOMPARE(qApp->styleSheet(), QString());
    gallery.box("styleSheetSwitch")->click();
    QCOMPARE(qApp->styleSheet(), styleSheet);
}

void tst_GalleryWindow::tapPicksDemoWidget()
{
    Gallery gallery;
    QCOMPARE(gallery.properties()->target(), gallery.demoWidget(0));
    tap(gallery.demoWidget(1));
    QTRY_COMPARE(gallery.properties()->target(), gallery.demoWidget(1));
}

void tst_GalleryWindow::tapOnChildPicksDemoWidget()
{
    Gallery gallery;
    gallery.properties()->setTarget(gallery.demoWidget(1));
    tap(gallery.demoWidget(0)->findChild<QPushButton*>());
    QTRY_COMPARE(gallery.properties()->target(), gallery.demoWidget(0));
}

void tst_GalleryWindow::tapOnDisabledDemoWidgetPicksIt()
{
    Gallery gallery;
    gallery.box("disabledSwitch")->click();
    tap(gallery.demoWidget(1));
    QTRY_COMPARE(gallery.properties()->target(), gallery.demoWidget(1));
}

void tst_GalleryWindow::tabPicksDemoWidget()
{
    Gallery gallery;
    gallery.demoWidget(0)->setFocus(Qt::OtherFocusReason);
    gallery.demoWidget(1)->setFocus(Qt::OtherFocusReason); // a program's own doing picks nothing
    QCOMPARE(gallery.properties()->target(), gallery.demoWidget(0));
    gallery.demoWidget(0)->setFocus(Qt::OtherFocusReason);
    QTest::keyClick(gallery.demoWidget(0), Qt::Key_Tab);
    QVERIFY(gallery.demoWidget(1)->hasFocus());
    QCOMPARE(gallery.properties()->target(), gallery.demoWidget(1));
}

void tst_GalleryWindow::tapElsewherePicksNothing()
{
    Gallery gallery;
    gallery.properties()->setTarget(gallery.demoWidget(1));
    auto* other = gallery.window.findChild<QPushButton*>(QStringLiteral("other"));
    QSignalSpy clicks(other, &QPushButton::clicked);
    tap(other);
    QTRY_COMPARE(clicks.count(), 1);
    QCOMPARE(gallery.properties()->target(), gallery.demoWidget(1));
}

void tst_GalleryWindow::hidesProperties()
{
    Gallery gallery;
    const int width = gallery.window.page()->width();
    QVERIFY(gallery.properties()->isVisible());
    gallery.chooseTool(QStringLiteral("Page alone"));
    QVERIFY(!gallery.properties()->isVisible());
    QTRY_VERIFY(gallery.window.page()->width() > width);
    gallery.chooseTool(QStringLiteral("Properties"));
    QVERIFY(gallery.properties()->isVisible());
}

void tst_GalleryWindow::hidesPropertiesOfPageWithoutDemoWidgets()
{
    Gallery gallery;
    gallery.window.showPage(QStringLiteral("empty"));
    QVERIFY(!gallery.properties()->isVisible());
    gallery.window.showPage(QStringLiteral("samples"));
    QVERIFY(gallery.properties()->isVisible());
}

const test::Registration<tst_GalleryWindow> registration;

#include "tst_GalleryWindow.moc"
