#include "Contrast.h"
#include "KeypadArea.h"
#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "SettingsPanel.h"
#include "TestApplication.h"
#include "Theme.h"
#include "XPointer.h"

#include <Switch.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QDialog>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QScroller>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

using test::XPointer;
using ui::KeypadLineEdit;
using ui::KeypadPopup;

namespace {

bool isOpen(const KeypadLineEdit* field)
{
    return field->keypad() && field->keypad()->isVisible();
}

bool waitUntilOpen(const KeypadLineEdit* field)
{
    return QTest::qWaitFor([=] { return isOpen(field); })
        && QTest::qWaitForWindowExposed(field->keypad());
}

bool waitUntilClosed(const KeypadLineEdit* field)
{
    return QTest::qWaitFor([=] { return !isOpen(field); });
}

bool tapKey(const KeypadLineEdit* field, const QString& name)
{
    const QPushButton* key = test::keypadKey(*field->keypad(), name);
    return key && XPointer::tap(*key) && QTest::qWaitFor([=] { return !key->isDown(); });
}

/// Makes the keypad as tall as it gets, for the next time that it opens.
bool showAllSections(KeypadLineEdit* field)
{
    field->showKeypad();
    if (!waitUntilOpen(field))
        return false;
    for (const int section : {0, 1, 2})
        field->keypad()->setKeypadSectionVisible(section, true);
    field->hideKeypad();
    return waitUntilClosed(field);
}

QRect onScreen(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

/// Moves the pressed pointer by \a distance pixels downwards, in steps as a hand makes them.
bool drag(const QPoint& from, int distance)
{
    constexpr int steps = 8;
    for (int step = 1; step <= steps; ++step) {
        if (!XPointer::move(from + QPoint(0, distance * step / steps)))
            return false;
    }
    return true;
}

} // namespace

/// The settings panel as its user has it: real taps on a real screen, in either theme.
class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }
    void init();
    void cleanup();

    void edits();
    void refusesWhatIsNotAcceptable();
    void scrollsAfterADragBeganOnAField();
    void bringsFieldIntoView_data();
    void bringsFieldIntoView();
    void makesRoomBelowTheLastField();
    void highlightsIndicatorWhileDragged();
    void showsStatesInTheColorsOfTheTheme();
    void choosesAnUpdate();
    void elidesLongNames();
    void canBeRead_data();
    void canBeRead();

private:
    KeypadLineEdit* field(const char* name) const
    {
        return m_panel->findChild<KeypadLineEdit*>(QLatin1String(name));
    }
    Switch* toggle(const char* name) const
    {
        return m_panel->findChild<Switch*>(QLatin1String(name));
    }
    QLabel* label(const char* name) const
    {
        return m_panel->findChild<QLabel*>(QLatin1String(name));
    }
    void scrollTo(int value);

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<SettingsPanel> m_panel;
    KeypadArea* m_area = nullptr;
};

void tst_Settings::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("older")));
    for (const char* name : {"panel-1.5.img", "notes.txt"}) {
        QFile file(m_folder->filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    Theme::apply(*qApp, false);
    m_panel.reset(new SettingsPanel({m_folder->path()}, false));
    connect(m_panel.data(), &SettingsPanel::themeChosen, qApp,
            [](bool dark) { Theme::apply(*qApp, dark); });
    m_area = m_panel->findChild<KeypadArea*>();
    QVERIFY(m_area);
    m_panel->showFullScreen();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.data()));
    QVERIFY(XPointer::move(onScreen(label("title")).center()));
}

void tst_Settings::cleanup()
{
    m_panel.reset();
    m_folder.reset();
}

void tst_Settings::scrollTo(int value)
{
    m_area->verticalScrollBar()->setValue(value);
}

void tst_Settings::edits()
{
    KeypadLineEdit* overrun = field("overrun");
    QVERIFY(XPointer::tap(*overrun));
    QVERIFY(waitUntilOpen(overrun));
    QCOMPARE(overrun->keypad()->findChild<QLabel*>()->text(), overrun->accessibleName());
    QTRY_COMPARE(overrun->selectedText(), QStringLiteral("15"));
    QVERIFY(tapKey(overrun, QStringLiteral("4")));
    QVERIFY(tapKey(overrun, QStringLiteral("2")));
    QVERIFY(tapKey(overrun, QStringLiteral("OK")));
    QVERIFY(waitUntilClosed(overrun));
    QCOMPARE(overrun->text(), QStringLiteral("42"));
    QVERIFY(label("report")->text().endsWith(QStringLiteral("42")));
}

void tst_Settings::refusesWhatIsNotAcceptable()
{
    KeypadLineEdit* overrun = field("overrun");
    QVERIFY(XPointer::tap(*overrun));
    QVERIFY(waitUntilOpen(overrun));
    QTRY_COMPARE(overrun->selectedText(), QStringLiteral("15"));
    QVERIFY(tapKey(overrun, QStringLiteral("0")));
    QCOMPARE(overrun->property("inputValid").toBool(), false);
    QVERIFY(!test::keypadKey(*overrun->keypad(), QStringLiteral("OK"))->isEnabled());
    QVERIFY(tapKey(overrun, QStringLiteral("Cancel")));
    QVERIFY(waitUntilClosed(overrun));
    QCOMPARE(overrun->text(), QStringLiteral("15"));
    QCOMPARE(label("report")->text(), QString());
}

/// The pointer rests on a field until its keypad opens, moves off it and is released.
void tst_Settings::scrollsAfterADragBeganOnAField()
{
    KeypadLineEdit* overrun = field("overrun");
    const QPoint start = onScreen(overrun).center();
    QVERIFY(XPointer::press(start));
    QVERIFY(waitUntilOpen(overrun));
    QVERIFY(drag(start, -100));
    QVERIFY(XPointer::release());
    QVERIFY(XPointer::tap(onScreen(label("title")).center())); // closes the keypad
    QVERIFY(waitUntilClosed(overrun));
    scrollTo(0);

    const QPoint empty = onScreen(m_area).center() - QPoint(200, 0);
    QVERIFY(XPointer::press(empty));
    QVERIFY(drag(empty, -150));
    QVERIFY(XPointer::release());
    QTRY_VERIFY(m_area->verticalScrollBar()->value() > 50);
    QTRY_COMPARE(QScroller::scroller(m_area->viewport())->state(), QScroller::Inactive);
    QVERIFY(!isOpen(overrun));
}

void tst_Settings::bringsFieldIntoView_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bottom"); // of the field, below the upper edge of the area
    QTest::addColumn<bool>("inside"); // the whole field, before it is tapped
    QTest::addColumn<bool>("tall"); // the keypad, with all its sections
    QTest::newRow("room below") << "overrun" << 100 << true << false;
    QTest::newRow("room above") << "name" << 280 << true << false;
    QTest::newRow("partly below the area") << "port" << 440 << false << false;
    QTest::newRow("partly above the area") << "temperature" << 22 << false << false;
    QTest::newRow("room neither below nor above") << "name" << 200 << true << true;
}

void tst_Settings::bringsFieldIntoView()
{
    QFETCH(QString, name);
    QFETCH(int, bottom);
    QFETCH(bool, inside);
    QFETCH(bool, tall);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QRect viewport = onScreen(m_area->viewport());
    const QScrollBar* bar = m_area->verticalScrollBar();
    const int maximum = bar->maximum();
    KeypadLineEdit* edited = field(qPrintable(name));
    if (tall)
        QVERIFY(showAllSections(edited));
    scrollTo(onScreen(edited).bottom() - viewport.top() - bottom);
    QCOMPARE(viewport.contains(onScreen(edited)), inside);
    QVERIFY(XPointer::tap(onScreen(edited).intersected(viewport).center()));
    QVERIFY(waitUntilOpen(edited));

    const QRect keypad = onScreen(edited->keypad());
    QVERIFY(viewport.contains(onScreen(edited)));
    QVERIFY2(screen.contains(keypad), qPrintable(QString::number(keypad.top())));
    QVERIFY(!keypad.intersects(onScreen(edited)));

    QVERIFY(tapKey(edited, QStringLiteral("Cancel")));
    QVERIFY(waitUntilClosed(edited));
    QTRY_COMPARE(bar->maximum(), maximum);
}

void tst_Settings::makesRoomBelowTheLastField()
{
    m_panel->hide();
    KeypadArea area;
    auto* last = new KeypadLineEdit(&area, ui::keyboard::KeyboardType::Text);
    area.column()->addSpacing(180);
    area.column()->addWidget(last);
    area.showFullScreen();
    area.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    QVERIFY(showAllSections(last));
    QCOMPARE(area.verticalScrollBar()->maximum(), 0);

    QVERIFY(XPointer::tap(*last));
    QVERIFY(waitUntilOpen(last));
    const QRect keypad = onScreen(last->keypad());
    QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(keypad));
    QVERIFY(!keypad.intersects(onScreen(last)));
    QVERIFY(area.verticalScrollBar()->value() > 0);
    QVERIFY(tapKey(last, QStringLiteral("Cancel")));
    QVERIFY(waitUntilClosed(last));
    QTRY_COMPARE(area.verticalScrollBar()->maximum(), 0);
}

void tst_Settings::highlightsIndicatorWhileDragged()
{
    auto* indicator = qobject_cast<ui::widgets::ScrollIndicatorBar*>(m_area->verticalScrollBar());
    QVERIFY(indicator);
    const QRgb accent = indicator->palette().color(QPalette::Highlight).rgb();
    const auto isLit = [&] { return indicator->grab().toImage().pixel(0, 20) == accent; };
    const QScroller* scroller = QScroller::scroller(m_area->viewport());
    const QPoint empty = onScreen(m_area).center() - QPoint(200, 0);
    QVERIFY(XPointer::press(empty));
    QTRY_COMPARE(scroller->state(), QScroller::Pressed);
    QVERIFY(!isLit());
    QVERIFY(drag(empty, -30));
    QTRY_COMPARE(scroller->state(), QScroller::Dragging);
    QVERIFY(isLit());
    QVERIFY(XPointer::release());
    QTRY_COMPARE(scroller->state(), QScroller::Inactive);
    QVERIFY(!isLit());
}

void tst_Settings::showsStatesInTheColorsOfTheTheme()
{
    const auto thumb = [](Switch* control) {
        const QRect rect = control->indicatorRect();
        const QImage picture = control->grab().toImage();
        // In the middle of the thumb, which stands at one end of the track or at the other.
        const int x = control->isChecked() ? rect.right() - 23 : rect.left() + 23;
        return QColor(picture.pixel(x, rect.center().y()));
    };
    Switch* heating = toggle("heating");
    QVERIFY(heating->isChecked());
    const QColor light = heating->thumbOnBrush();
    QCOMPARE(thumb(heating), light); // from the start

    Switch* dark = toggle("dark");
    m_area->ensureWidgetVisible(dark);
    QVERIFY(XPointer::tap(*dark));
    QTRY_VERIFY(dark->isChecked());
    QTRY_VERIFY(heating->thumbOnBrush() != light);
    m_area->ensureWidgetVisible(heating);
    for (Switch* control : {heating, dark})
        QTRY_COMPARE(thumb(control), heating->thumbOnBrush());
}

void tst_Settings::choosesAnUpdate()
{
    auto* button = m_panel->findChild<QPushButton*>(QStringLiteral("chooseUpdate"));
    m_area->ensureWidgetVisible(button);
    QVERIFY(XPointer::tap(*button));
    QDialog* dialog = nullptr;
    QTRY_VERIFY(dialog = m_panel->findChild<QDialog*>());
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    const auto* open = dialog->findChild<QPushButton*>(QStringLiteral("open"));
    QVERIFY(!open->isEnabled());

    auto* browser = dialog->findChild<ui::FileBrowserWidget*>();
    auto* tiles = browser->findChild<QListView*>();
    const auto entry = [&](const char* name) {
        const QModelIndexList found = tiles->model()->match(
            tiles->model()->index(0, 0, tiles->rootIndex()), Qt::DisplayRole, QLatin1String(name));
        return found.value(0);
    };
    const auto tap = [&](const QModelIndex& index) {
        return XPointer::tap(tiles->viewport()->mapToGlobal(tiles->visualRect(index).center()));
    };
    // Sorted, so that no entry moves away from under the tap.
    QTRY_COMPARE(entry("older").row(), 0);
    QTRY_COMPARE(entry("panel-1.5.img").row(), 1);
    QVERIFY(!entry("notes.txt").isValid()); // no update
    QVERIFY(tap(entry("panel-1.5.img")));
    QTRY_VERIFY(open->isEnabled());
    QVERIFY(tap(entry("older"))); // a folder, which is opened and stays selected
    QTRY_VERIFY(browser->currentPath().endsWith(QStringLiteral("older")));
    QTRY_VERIFY(!open->isEnabled());
    QVERIFY(!browser->selectedFiles().isEmpty());

    browser->setRootPath(m_folder->path());
    QTRY_VERIFY(entry("panel-1.5.img").isValid());
    QVERIFY(tap(entry("panel-1.5.img")));
    QTRY_VERIFY(open->isEnabled());
    const QPointer<QDialog> closed(dialog);
    QVERIFY(XPointer::tap(*open));
    QTRY_VERIFY(!closed);
    QCOMPARE(label("update")->text(), QStringLiteral("panel-1.5.img"));
}

void tst_Settings::elidesLongNames()
{
    const QString name = QString(150, QLatin1Char('m')) + QStringLiteral(".img");
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QSize size = m_panel->size();
    m_panel->findChild<QPushButton*>(QStringLiteral("chooseUpdate"))->click();
    auto* dialog = m_panel->findChild<QDialog*>();
    QVERIFY(dialog);
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    auto* tiles = dialog->findChild<QListView*>();
    const auto find = [&] {
        return tiles->model()
            ->match(tiles->model()->index(0, 0, tiles->rootIndex()), Qt::DisplayRole, name)
            .value(0);
    };
    QTRY_VERIFY(find().isValid());
    tiles->setCurrentIndex(find());
    auto* open = dialog->findChild<QPushButton*>(QStringLiteral("open"));
    QTRY_VERIFY(open->isEnabled());
    QVERIFY(open->fontMetrics().horizontalAdvance(open->text()) < size.width() / 2);
    QVERIFY(XPointer::tap(*open));
    QTRY_VERIFY(label("update")->text().startsWith(QStringLiteral("mmm")));
    QTRY_VERIFY(label("update")->text().size() < name.size());
    QVERIFY(m_panel->minimumSizeHint().width() <= size.width());
}

void tst_Settings::canBeRead_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void tst_Settings::canBeRead()
{
    QFETCH(bool, dark);
    Theme::apply(*qApp, dark);
    const auto widgets = m_panel->findChildren<QWidget*>();
    int texts = 0;
    for (QWidget* widget : widgets) {
        const bool text =
            (qobject_cast<QLabel*>(widget) && !qobject_cast<QLabel*>(widget)->text().isEmpty())
            || qobject_cast<QLineEdit*>(widget);
        const bool indicator =
            qobject_cast<ui::widgets::ScrollIndicatorBar*>(widget) && widget->isVisible();
        if (!text && !indicator)
            continue;
        m_area->ensureWidgetVisible(widget);
        const QImage picture = m_panel->grab().toImage();
        const QRect rect(widget->mapTo(m_panel.data(), QPoint(0, 0)), widget->size());
        const double found =
            test::contrastIn(picture, rect.intersected(picture.rect()).adjusted(0, 6, 0, -6));
        QVERIFY2(found >= (text ? 4.5 : 3.0),
                 qPrintable(QStringLiteral("%1: %2").arg(widget->objectName()).arg(found)));
        ++texts;
    }
    QVERIFY(texts > 12);
}

int main(int argc, char** argv)
{
    return test::run<tst_Settings>(argc, argv);
}

#include "tst_Settings.moc"
