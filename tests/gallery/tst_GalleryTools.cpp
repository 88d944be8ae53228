#include "Appearance.h"
#include "GalleryPage.h"
#include "NextMenu.h"
#include "pages/Pages.h"
#include "properties/HiddenValues.h"
#include "properties/PropertyEditor.h"
#include "properties/PropertyGroup.h"
#include "properties/ValueEditor.h"
#include "ShownGallery.h"
#include "StyleSheetFile.h"
#include "TestApplication.h"
#include "tools/Tools.h"

#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/KeypadLineEdit.h>

#include <QAbstractAnimation>
#include <QAbstractEventDispatcher>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

using test::imageOf;
using test::ShownGallery;
using test::tap;

namespace {

int timersOf(const QWidget& window)
{
    int count = 0;
    for (QObject* object : window.findChildren<QObject*>())
        count += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    return count;
}

} // namespace

/// What the gallery tells of its pages: properties, code, signals, style sheet and reference.
class tst_GalleryTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void overviewLeadsToEveryPage();
    void linksToReference();
    void everyPageShowsCode_data();
    void everyPageShowsCode();
    void logsSignals();
    void logsWhatMenuOfPathDoes();
    void logHidesSecrets();
    void logCountsRepetitions();
    void logForgetsWithPage();
    void showsHiddenValues();
    void editsHiddenValue();
    void resetsValue();
    void filtersRows();
    void hidesSecrets();
    void editsPalette();
    void editsSizePolicy();
    void switchThatIsOnShowsItsColour();
    void keepsWhatIsTyped();
    void marksTarget();
    void restsWithoutTimers();
    void everyPageRests_data();
    void everyPageRests();
    void styleSheetTakesEffectWhileWritten();
    void styleSheetErrors_data();
    void styleSheetErrors();
    void exampleHasRuleForEveryPage_data();
    void exampleHasRuleForEveryPage();
};

void tst_GalleryTools::initTestCase()
{
    test::prepareGallery();
}

void tst_GalleryTools::cleanup()
{
    Appearance().applyToApplication();
}

void tst_GalleryTools::overviewLeadsToEveryPage()
{
    QSet<QString> expected;
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& entry : pages)
        expected.insert(entry.id);
    expected.remove(QStringLiteral("overview"));

    QSet<QString> reached;
    ShownGallery gallery("overview", QSize(800, 1200));
    const int links =
        gallery.window.page()->findChildren<QPushButton*>(QStringLiteral("pageLink")).size();
    QCOMPARE(links, 15);
    for (int link = 0; link < links; ++link) {
        auto* button =
            gallery.window.page()->findChildren<QPushButton*>(QStringLiteral("pageLink")).at(link);
        tap(button);
        QTRY_VERIFY(gallery.window.page()->objectName() != QLatin1String("overview"));
        reached.insert(gallery.window.page()->objectName());
        gallery.window.showPage(QStringLiteral("overview"));
        QCoreApplication::processEvents();
    }
    QCOMPARE(reached, expected);
}

void tst_GalleryTools::linksToReference()
{
    ShownGallery gallery("path");
    QStringList texts;
    for (const auto* link :
         gallery.window.findChildren<QToolButton*>(QStringLiteral("referenceLink")))
        texts.append(link->text());
    QCOMPARE(texts,
             QStringList({QStringLiteral("BreadCrumbsWidget"), QStringLiteral("ClickableLabel")}));

    // There is none beside the program of the tests.
    auto* message = gallery.window.findChild<QLabel*>(QStringLiteral("referenceMessage"));
    QVERIFY(!message->isVisible());
    tap(gallery.window.findChild<QToolButton*>(QStringLiteral("referenceLink")));
    QTRY_VERIFY(message->isVisible());
    QVERIFY(message->text().contains(QStringLiteral("./dev docs")));
}

void tst_GalleryTools::everyPageShowsCode_data()
{
    test::addPages();
}

void tst_GalleryTools::everyPageShowsCode()
{
    QFETCH(QString, id);
    if (id == QLatin1String("overview"))
        return; // it leads to the others
    ShownGallery gallery(id);
    gallery.chooseTool("Code");
    auto* choice = gallery.window.findChild<QComboBox*>(QStringLiteral("classChoice"));
    QVERIFY(choice->count() > 0);
    for (int index = 0; index < choice->count(); ++index) {
        choice->setCurrentIndex(index);
        const QString code =
            gallery.window.findChild<QPlainTextEdit*>(QStringLiteral("code"))->toPlainText();
        QVERIFY2(code.count(QLatin1Char('\n')) > 1, qPrintable(choice->itemText(index)));
        QVERIFY2(!code.contains(QStringLiteral("//! [")), qPrintable(code));
        QVERIFY2(!code.startsWith(QLatin1Char(' ')), qPrintable(code));
    }
}

void tst_GalleryTools::logsSignals()
{
    ShownGallery gallery("switch");
    gallery.chooseTool("Signals");
    QVERIFY(gallery.log().isEmpty());
    auto* control = qobject_cast<Switch*>(gallery.demo("Plain, off"));
    tap(control);
    QTRY_VERIFY(control->isChecked());
    QVERIFY(gallery.log().contains(QStringLiteral("Plain, off: pressed()")));
    QVERIFY(gallery.log().contains(QStringLiteral("Plain, off: toggled(true)")));
    QVERIFY(gallery.log().contains(QStringLiteral("Plain, off: stateChanged(2)")));
}

void tst_GalleryTools::logsWhatMenuOfPathDoes()
{
    ShownGallery gallery("path");
    auto* more = gallery.demo("Path")->findChild<QPushButton*>();
    QTRY_VERIFY(more->isVisible());
    QString chosen;
    test::whenMenuOpens(this, [&chosen](QMenu& menu) {
        QAction* last = menu.actions().constLast();
        chosen = last->text();
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {},
                          menu.actionGeometry(last).center());
    });
    tap(more);
    QTRY_VERIFY(!chosen.isEmpty());
    const auto* directory = gallery.window.findChild<QLabel*>(QStringLiteral("directory"));
    QTRY_VERIFY(directory->text().endsWith(QLatin1Char('/') + chosen));
    const QString told = QStringLiteral("Path: dirChanged(\"%1\")").arg(directory->text());
    QVERIFY2(gallery.log().contains(told), qPrintable(gallery.log()));
}

void tst_GalleryTools::logHidesSecrets()
{
    ShownGallery gallery("text-entry");
    auto* pin = qobject_cast<QLineEdit*>(gallery.demo("PIN, 4 to 6 digits"));
    pin->setText(QStringLiteral("98765"));
    QVERIFY(gallery.log().contains(QStringLiteral("textChanged")));
    QVERIFY(!gallery.log().contains(QStringLiteral("98765")));
    auto* address = qobject_cast<QLineEdit*>(gallery.demo("IP address"));
    address->setText(QStringLiteral("10.0.0.1"));
    QVERIFY(gallery.log().contains(QStringLiteral("IP address: textChanged(\"10.0.0.1\")")));
}

void tst_GalleryTools::logCountsRepetitions()
{
    ShownGallery gallery("path");
    auto* label = qobject_cast<ClickableLabel*>(gallery.demo("Short label"));
    for (int i = 0; i < 3; ++i)
        tap(label);
    QTRY_COMPARE(gallery.log(), QStringLiteral("Short label: clicked()  \u00d73"));
    QCOMPARE(gallery.window.findChild<QLabel*>(QStringLiteral("report"))->text(),
             QStringLiteral("Tapped: 3"));
}

void tst_GalleryTools::logForgetsWithPage()
{
    ShownGallery gallery("path");
    tap(gallery.demo("Short label"));
    QTRY_VERIFY(!gallery.log().isEmpty());
    gallery.window.showPage(QStringLiteral("frames"));
    QVERIFY(gallery.log().isEmpty());
}

void tst_GalleryTools::showsHiddenValues()
{
    ShownGallery gallery("battery");
    gallery.properties()->setTarget(gallery.demo("Charging"));
    QCOMPARE(gallery.row("chargePercentage")->findChild<QLineEdit*>()->text(),
             QStringLiteral("60"));
    QVERIFY(gallery.row("batteryCharging")->findChild<Switch*>()->isChecked());
    QVERIFY(gallery.row("batteryPresent")->findChild<Switch*>()->isChecked());
    QCOMPARE(gallery.row("frameWidth")->findChild<QLineEdit*>()->text(), QStringLiteral("4"));
    QVERIFY(gallery.row("fillColor"));

    gallery.window.showPage(QStringLiteral("frames"));
    gallery.properties()->setTarget(gallery.demo("Masked"));
    QVERIFY(gallery.row("fillContents")->findChild<Switch*>()->isChecked());
    QVERIFY(gallery.row("widgetMask")->findChild<Switch*>()->isChecked());

    gallery.window.showPage(QStringLiteral("scroll-indicator"));
    QVERIFY(gallery.row("highlightBar"));
    gallery.window.showPage(QStringLiteral("file-browser"));
    for (const char* name : {"allowedDirs", "filters", "selectionMode"})
        QVERIFY2(gallery.row(name), name);
}

void tst_GalleryTools::editsHiddenValue()
{
    ShownGallery gallery("battery");
    auto* battery = gallery.demo("Try me");
    gallery.properties()->setTarget(battery);
    const QImage before = imageOf(battery);
    gallery.row("chargePercentage")->findChild<QToolButton*>(QStringLiteral("stepDown"))->click();
    QCOMPARE(hiddenvalues::value(*battery, "chargePercentage"), QVariant(59));
    QVERIFY(imageOf(battery) != before);

    hiddenvalues::set(battery, "chargePercentage", 20); // as the slider of the page does
    QTRY_COMPARE(gallery.row("chargePercentage")->findChild<QLineEdit*>()->text(),
                 QStringLiteral("20"));
}

void tst_GalleryTools::resetsValue()
{
    ShownGallery gallery("battery");
    auto* battery = gallery.demo("Try me");
    gallery.properties()->setTarget(battery);
    PropertyRow* row = gallery.row("frameWidth");
    auto* reset = row->findChild<QToolButton*>(QStringLiteral("resetButton"));
    QVERIFY(reset->isHidden());
    for (int i = 0; i < 3; ++i)
        row->findChild<QToolButton*>(QStringLiteral("stepUp"))->click();
    QCOMPARE(hiddenvalues::value(*battery, "frameWidth"), QVariant(7));
    QVERIFY(!reset->isHidden());

    // The row is made anew for it, and still knows.
    gallery.properties()->setTarget(gallery.demo("Small"));
    gallery.properties()->setTarget(battery);
    row = gallery.row("frameWidth");
    reset = row->findChild<QToolButton*>(QStringLiteral("resetButton"));
    QVERIFY(!reset->isHidden());
    reset->click();
    QCOMPARE(hiddenvalues::value(*battery, "frameWidth"), QVariant(4));
    QCOMPARE(row->findChild<QLineEdit*>()->text(), QStringLiteral("4"));
    QVERIFY(reset->isHidden());
}

void tst_GalleryTools::filtersRows()
{
    ShownGallery gallery("battery");
    auto* filter = gallery.properties()->findChild<QLineEdit*>(QStringLiteral("filter"));
    QVERIFY(!gallery.row("minimumWidth")); // folded away
    filter->setText(QStringLiteral("WIDTH"));
    QVERIFY(gallery.row("minimumWidth")->isVisible());
    QVERIFY(gallery.row("frameWidth")->isVisible());
    QVERIFY(!gallery.row("chargePercentage")->isVisible());
    filter->clear();
    QVERIFY(gallery.row("chargePercentage")->isVisible());
    QVERIFY(!gallery.row("minimumWidth")->isVisible());
}

void tst_GalleryTools::hidesSecrets()
{
    ShownGallery gallery("text-entry");
    auto* pin = gallery.demo("PIN, 4 to 6 digits");
    gallery.properties()->setTarget(pin);
    auto* text = gallery.row("text")->findChild<QLineEdit*>();
    QCOMPARE(text->echoMode(), QLineEdit::Password);
    gallery.properties()
        ->findChild<QLineEdit*>(QStringLiteral("filter"))
        ->setText(QStringLiteral("selectedText"));
    qobject_cast<QLineEdit*>(pin)->selectAll();
    gallery.properties()->refresh();
    for (const QLabel* label : gallery.row("selectedText")->editor()->findChildren<QLabel*>()) {
        QCOMPARE(label->text().size(), 4);
        QVERIFY(!label->text().contains(QStringLiteral("1234")));
    }
}

void tst_GalleryTools::editsPalette()
{
    QWidget widget;
    PropertyRow row(&widget, "palette");
    row.editor()->findChild<QToolButton*>()->click();
    // The window colour is the first of the roles, and a button unfolds it.
    auto* color = row.editor()->findChildren<ValueEditor*>().constFirst();
    Q_EMIT color->edited(QColor(1, 2, 3));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(widget.palette().color(group, QPalette::Window), QColor(1, 2, 3));
    QVERIFY(row.editor()->findChild<QToolButton*>()->text().endsWith(QStringLiteral("#010203")));
}

void tst_GalleryTools::editsSizePolicy()
{
    QWidget widget;
    PropertyRow row(&widget, "sizePolicy");
    row.editor()->findChild<QToolButton*>()->click();
    auto* horizontal = row.editor()->findChild<QComboBox*>();
    QCOMPARE(horizontal->currentText(), QStringLiteral("Preferred"));
    QTest::keyClicks(horizontal, QStringLiteral("Fixed"));
    QCOMPARE(widget.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(widget.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    row.editor()->findChildren<QToolButton*>(QStringLiteral("stepUp")).at(1)->click();
    QCOMPARE(widget.sizePolicy().verticalStretch(), 1);
}

void tst_GalleryTools::switchThatIsOnShowsItsColour()
{
    ShownGallery gallery("switch");
    auto* control = qobject_cast<Switch*>(gallery.demo("Plain, on"));
    gallery.properties()->setTarget(control);
    Q_EMIT gallery.row("thumbOnBrush")->editor()->edited(QColor(Qt::red));
    QVERIFY(control->isChecked());
    const QImage image = imageOf(control);
    int red = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            red += image.pixelColor(x, y) == QColor(Qt::red);
    }
    QVERIFY2(red > 50, qPrintable(QString::number(red)));
}

void tst_GalleryTools::keepsWhatIsTyped()
{
    ShownGallery gallery("animation");
    QWidget* beacon = gallery.demo("Pulsing light");
    gallery.properties()->setTarget(beacon);
    auto* field = gallery.row("brightness")->findChild<ui::KeypadLineEdit*>();
    const QString before = field->text();
    QTRY_VERIFY(field->text() != before); // it follows the animation
    tap(field);
    QTRY_VERIFY(field->hasFocus());
    QTRY_VERIFY(field->hasSelectedText());
    field->setText(QStringLiteral("0.7"));
    const double shown = beacon->property("brightness").toDouble();
    QTRY_VERIFY(beacon->property("brightness").toDouble() != shown);
    gallery.properties()->refresh();
    QCOMPARE(field->text(), QStringLiteral("0.7"));
    QTest::keyClick(field, Qt::Key_Escape);
    QTRY_VERIFY(field->text() != QStringLiteral("0.7"));
}

void tst_GalleryTools::marksTarget()
{
    ShownGallery gallery("battery");
    QWidget* battery = gallery.demo("50 %");
    gallery.properties()->setTarget(battery);
    const auto* mark = gallery.window.findChild<TargetMark*>();
    QVERIFY(mark->isVisible());
    const QRect around(battery->mapTo(&gallery.window, QPoint()), battery->size());
    QTRY_VERIFY(QRect(mark->mapTo(&gallery.window, QPoint()), mark->size()).contains(around));
    QVERIFY(mark->mask().contains(QPoint()));
    QVERIFY(!mark->mask().contains(mark->rect().center())); // the battery is seen

    battery->setFixedSize(60, 100);
    QTRY_VERIFY(mark->width() >= 60 && mark->height() >= 100);
    gallery.chooseTool("Code");
    QVERIFY(!mark->isVisible());
    gallery.chooseTool("Properties");
    QVERIFY(mark->isVisible());
    gallery.window.showPage(QStringLiteral("frames"));
    QVERIFY(gallery.window.findChild<TargetMark*>());
}

/// Nothing wakes the processor while nobody touches anything.
void tst_GalleryTools::restsWithoutTimers()
{
    ShownGallery gallery("switch");
    const auto timers = [&gallery] { return timersOf(gallery.window); };
    QTRY_COMPARE(timers(), 0);
    gallery.demo("Plain, off")->update();
    QTRY_VERIFY(timers() > 0); // the editor looks, once
    QTRY_COMPARE(timers(), 0);
}

void tst_GalleryTools::everyPageRests_data()
{
    test::addPages();
}

void tst_GalleryTools::everyPageRests()
{
    QFETCH(QString, id);
    constexpr int longestGreeting = 8000; // milliseconds
    ShownGallery gallery(id);
    const auto rests = [&gallery] {
        const auto animations = gallery.window.findChildren<QAbstractAnimation*>();
        return timersOf(gallery.window) == 0
            && std::none_of(animations.begin(), animations.end(), [](const auto* animation) {
                   return animation->state() == QAbstractAnimation::Running;
               });
    };
    QTRY_VERIFY_WITH_TIMEOUT(rests(), longestGreeting);
}

void tst_GalleryTools::styleSheetTakesEffectWhileWritten()
{
    ShownGallery gallery("grid-button");
    gallery.chooseTool("Style sheet");
    auto* text = gallery.window.findChild<QPlainTextEdit*>(QStringLiteral("styleSheetText"));
    auto* message = gallery.window.findChild<QLabel*>(QStringLiteral("styleSheetMessage"));
    QCOMPARE(text->toPlainText(), exampleStyleSheet());
    text->setPlainText(QStringLiteral("QPushButton { min-height: 77px; }"));
    QTRY_COMPARE(qApp->styleSheet(), QStringLiteral("QPushButton { min-height: 77px; }"));
    QVERIFY(gallery.window.findChild<Switch*>(QStringLiteral("styleSheetSwitch"))->isChecked());
    QVERIFY(!message->isVisible());

    text->setPlainText(QStringLiteral("QPushButton { min-height: 77px; }\nQLabel { color: "));
    QTRY_VERIFY(message->isVisible());
    QCOMPARE(message->text(), QStringLiteral("line 2: this rule is not well-formed"));
    QCOMPARE(qApp->styleSheet(), QStringLiteral("QPushButton { min-height: 77px; }"));
}

void tst_GalleryTools::styleSheetErrors_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QStringList>("errors");
    QTest::newRow("none") << "QLabel { color: red; }" << QStringList();
    QTest::newRow("example") << exampleStyleSheet() << QStringList();
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("comment alone") << "/* QLabel { colr } */" << QStringList();
    QTest::newRow("unknown property") << "/* a\n b */\nQLabel,\nQPushButton { colr: red; }"
                                      << QStringList("line 3: there is no property \"colr\"");
    QTest::newRow("two errors") << "QLabel { colr: red; }\nQFrame { x y z( }"
                                << QStringList({"line 1: there is no property \"colr\"",
                                                "line 2: this rule is not well-formed"});
    QTest::newRow("no braces") << "a b c" << QStringList("line 1: this rule is not well-formed");
    QTest::newRow("brace too many")
        << "QLabel { color: red; }\n}" << QStringList("line 2: this rule is not well-formed");
}

void tst_GalleryTools::styleSheetErrors()
{
    QFETCH(QString, styleSheet);
    QFETCH(QStringList, errors);
    QCOMPARE(::styleSheetErrors(styleSheet), errors);
}

void tst_GalleryTools::exampleHasRuleForEveryPage_data()
{
    test::addPages();
}

void tst_GalleryTools::exampleHasRuleForEveryPage()
{
    QFETCH(QString, id);
    QVERIFY2(exampleStyleSheet().contains(QLatin1Char('#') + id + QLatin1Char(' '))
                 || id == QLatin1String("file-browser"), // by the name of the browser itself
             qPrintable(id));
    ShownGallery gallery(id);
    GalleryPage* page = gallery.window.page();
    QTRY_VERIFY(page->isReady());
    const QImage plain = imageOf(page);
    const QString rules = exampleStyleSheet();
    Appearance appearance;
    appearance.styleSheet = rules;
    appearance.applyToApplication();
    QVERIFY(imageOf(page) != plain);
}

const test::Registration<tst_GalleryTools> registration;

#include "tst_GalleryTools.moc"
