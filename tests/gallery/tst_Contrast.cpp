#include "Appearance.h"
#include "Contrast.h"
#include "GalleryPage.h"
#include "pages/DemoParts.h"
#include "pages/Pages.h"
#include "PageView.h"
#include "Screenshots.h"
#include "ShownGallery.h"
#include "TestApplication.h"
#include "VisibleTexts.h"

#include <Switch.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QDir>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>

using test::nameOf;
using test::Text;
using test::textsIn;
using ui::widgets::ScrollIndicatorBar;

namespace {

// As WCAG 2.1 has them.
constexpr double leastForText = 4.5;
constexpr double leastForIcons = 3.0;

/// WCAG demands nothing of what cannot be used; it is still to be made out.
constexpr double leastForDisabledText = 2.0;

bool showsIcon(const QWidget& widget)
{
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    return qobject_cast<const IconLabel*>(&widget) || (button && !button->icon().isNull());
}

/// Those with less contrast than \a least, in words.
QString below(double least, const QVector<Text>& texts)
{
    QStringList below;
    for (const Text& text : texts) {
        if (text.contrast < least)
            below.append(QStringLiteral("%1: %2").arg(text.name).arg(text.contrast));
    }
    return below.join(QLatin1Char('\n'));
}

bool hasItemsOf(const QAbstractItemView& view, const QVector<Text>& texts)
{
    return std::any_of(texts.cbegin(), texts.cend(),
                       [name = nameOf(view)](const Text& text) { return text.name == name; });
}

/// A page as its screenshot shows it.
struct Shot
{
    Shot(const PageEntry& entry, bool dark, bool disabled = false)
    {
        Appearance appearance;
        appearance.dark = dark;
        appearance.disabled = disabled;
        appearance.applyToApplication();
        view = new PageView(entry, &window);
        appearance.applyToPage(*view->page());
        view->ensurePolished();
        view->resize(view->pictureSize());
        window.resize(view->size());
        rendering::showUnseen(&window);
        const GalleryPage* page = view->page();
        isReady = rendering::waitUntil([page] { return page->isReady(); });
        picture = rendering::pictureOf(&window, 1.0);
    }

    QWidget window;
    PageView* view = nullptr;
    QImage picture;
    bool isReady = false;
};

} // namespace

/// Whether what the pages show can be read, measured from their pictures.
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void texts_data();
    void texts();
    void disabledTexts_data();
    void disabledTexts();
    void toolTexts_data();
    void toolTexts();
    void listOfFiles_data();
    void listOfFiles();
    void keypads_data();
    void keypads();
    void icons_data();
    void icons();
    void idleIndicators_data();
    void idleIndicators();
};

namespace {

void addPages()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("dark");
    const QVector<PageEntry> pages = allPages();
    for (int page = 0; page < pages.size(); ++page) {
        for (const bool dark : {false, true})
            QTest::addRow("%s, %s", qPrintable(pages.at(page).id), dark ? "dark" : "light")
                << page << dark;
    }
}

void addAppearances()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

} // namespace

void tst_Contrast::initTestCase()
{
    test::prepareGallery();
}

void tst_Contrast::cleanup()
{
    Appearance().applyToApplication();
}

void tst_Contrast::texts_data()
{
    addPages();
}

void tst_Contrast::texts()
{
    QFETCH(int, page);
    QFETCH(bool, dark);
    const Shot shot(allPages().at(page), dark);
    QVERIFY(shot.isReady);
    const QVector<Text> texts = textsIn(shot.window, shot.picture);
    QVERIFY(texts.size() > 2);
    QCOMPARE(below(leastForText, texts), QString());
    for (const auto* list : shot.view->findChildren<QListView*>())
        QCOMPARE(list->isVisible(), hasItemsOf(*list, texts)); // they were measured, too
}

void tst_Contrast::disabledTexts_data()
{
    addPages();
}

void tst_Contrast::disabledTexts()
{
    QFETCH(int, page);
    QFETCH(bool, dark);
    const Shot shot(allPages().at(page), dark, true);
    QVERIFY(shot.isReady);
    const QVector<Text> texts = textsIn(shot.window, shot.picture, false);
    QVERIFY(texts.size() > 2);
    QCOMPARE(below(leastForDisabledText, texts), QString());
}

void tst_Contrast::toolTexts_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<bool>("dark");
    for (const char* tool : {"Properties", "Code", "Signals", "Style sheet"}) {
        for (const bool dark : {false, true})
            QTest::addRow("%s, %s", tool, dark ? "dark" : "light") << QByteArray(tool) << dark;
    }
}

/// With the list of the pages, one of which is selected.
void tst_Contrast::toolTexts()
{
    QFETCH(QByteArray, tool);
    QFETCH(bool, dark);
    test::ShownGallery gallery(QStringLiteral("battery"));
    gallery.window.findChild<Switch*>(QStringLiteral("darkSwitch"))->setChecked(dark);
    gallery.chooseTool(tool);
    QTRY_COMPARE(gallery.window.palette().color(QPalette::Window),
                 QApplication::palette().color(QPalette::Window));
    const QImage picture = test::imageOf(&gallery.window);
    QCOMPARE(below(leastForText, textsIn(gallery.window, picture)), QString());
    QCOMPARE(below(leastForDisabledText, textsIn(gallery.window, picture, false)), QString());
}

void tst_Contrast::listOfFiles_data()
{
    addAppearances();
}

/// The browser's other view, which is not on the page's picture.
void tst_Contrast::listOfFiles()
{
    QFETCH(bool, dark);
    QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir(QStringLiteral("photos")));
    Appearance appearance;
    appearance.dark = dark;
    appearance.applyToApplication();
    QWidget window;
    GalleryPage* page = makeFileBrowserPage(&window, {directory.path()});
    window.resize(600, 400);
    page->setGeometry(window.rect());
    page->findChildren<QPushButton*>(QStringLiteral("toolbarButton")).constLast()->click();
    auto* view = page->findChild<QTreeView*>();
    rendering::showUnseen(&window);
    QTRY_VERIFY(view->isVisible());
    QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 1);
    for (const bool selected : {false, true}) {
        if (selected)
            view->setCurrentIndex(view->model()->index(0, 0, view->rootIndex()));
        const QVector<Text> texts = textsIn(window, rendering::pictureOf(&window, 1.0));
        QVERIFY(hasItemsOf(*view, texts));
        QCOMPARE(below(leastForText, texts), QString());
    }
}

void tst_Contrast::keypads_data()
{
    addAppearances();
}

/// The line above the keys and the keys of every keypad of the page.
void tst_Contrast::keypads()
{
    QFETCH(bool, dark);
    test::ShownGallery gallery(QStringLiteral("text-entry"));
    gallery.window.findChild<Switch*>(QStringLiteral("darkSwitch"))->setChecked(dark);
    const auto fields = gallery.window.page()->findChildren<ui::KeypadLineEdit*>();
    QCOMPARE(fields.size(), 6);
    for (ui::KeypadLineEdit* field : fields) {
        field->setFocus();
        QTRY_VERIFY(field->keypad() && field->keypad()->isVisible());
        QWidget& keypad = *field->keypad();
        const QVector<Text> texts = textsIn(keypad, test::imageOf(&keypad));
        QVERIFY(texts.size() >= 14);
        QVERIFY(texts.constFirst().name.startsWith(QLatin1String("QLabel")));
        QCOMPARE(below(leastForText, texts), QString());
        field->hideKeypad();
        QTRY_VERIFY(!keypad.isVisible());
    }
}

void tst_Contrast::icons_data()
{
    addPages();
}

void tst_Contrast::icons()
{
    QFETCH(int, page);
    QFETCH(bool, dark);
    const Shot shot(allPages().at(page), dark);
    for (const QWidget* widget : shot.view->findChildren<QWidget*>()) {
        if (!widget->isVisible() || !showsIcon(*widget))
            continue;
        const QRect inner = widget->rect().adjusted(6, 6, -6, -6);
        const QRect rect(widget->mapTo(&shot.window, inner.topLeft()), inner.size());
        const double contrast = test::contrastIn(shot.picture, rect);
        QVERIFY2(contrast >= leastForIcons,
                 qPrintable(QStringLiteral("%1: %2").arg(nameOf(*widget)).arg(contrast)));
    }
}

void tst_Contrast::idleIndicators_data()
{
    addPages();
}

/// Against the window that an indicator lies on: its groove is a shade of the same colour.
void tst_Contrast::idleIndicators()
{
    QFETCH(int, page);
    QFETCH(bool, dark);
    const Shot shot(allPages().at(page), dark);
    const QColor window = QApplication::palette().color(QPalette::Window);
    for (const auto* bar : shot.view->findChildren<ScrollIndicatorBar*>()) {
        if (!bar->isVisible() || bar->minimum() == bar->maximum())
            continue;
        const QRect rect(bar->mapTo(&shot.window, QPoint()), bar->size());
        double contrast = 0.0;
        for (int x = rect.left(); x <= rect.right(); ++x) {
            for (int y = rect.top(); y <= rect.bottom(); ++y)
                contrast = qMax(contrast, test::contrast(shot.picture.pixelColor(x, y), window));
        }
        QVERIFY2(contrast >= leastForIcons, qPrintable(QString::number(contrast)));
    }
}

const test::Registration<tst_Contrast> registration;

#include "tst_Contrast.moc"
