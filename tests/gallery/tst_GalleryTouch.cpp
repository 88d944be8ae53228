#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "NextMenu.h"
#include "pages/Pages.h"
#include "properties/HiddenValues.h"
#include "properties/PropertyEditor.h"
#include "properties/PropertyGroup.h"
#include "TestApplication.h"
#include "tools/Tools.h"
#include "TouchStyle.h"
#include "XPointer.h"

#include <BreadCrumbsWidget.h>
#include <Switch.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QScroller>
#include <QTemporaryDir>
#include <QToolButton>

using test::XPointer;
using ui::KeypadLineEdit;

/// The gallery's own pages under a hand, on a real X server: taps, holds and drags.
class tst_GalleryTouch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void overviewOpensPage();
    void dragOverListChoosesNothing();
    void heldFieldThatIsDraggedLeavesAreaScrollable();
    void coveredFieldComesIntoView();
    void choosesToolAndReadsSignals();
    void editsNumberByKeypad();
    void resetsByTap();
    void dragsFiles();
    void choosesFromMenuOfPath();
    void stepsByTapsAtOnePlace();

private:
    bool drag(const QWidget* widget, const QPoint& distance) const;
    void chooseTool(int index);
    KeypadLineEdit* field(const QString& name) const;
    PropertyRow* row(const QByteArray& name) const;
    QScrollArea* pageArea() const;

    GalleryWindow* m_window = nullptr;
};

void tst_GalleryTouch::initTestCase()
{
    TouchStyle::install();
    QFont font = QApplication::font();
    font.setPointSize(9); // as the gallery finds it, which makes larger ones of it
    QApplication::setFont(font);
}

void tst_GalleryTouch::init()
{
    m_window = new GalleryWindow(allPages());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void tst_GalleryTouch::cleanup()
{
    delete m_window;
    m_window = nullptr;
}

/// From the middle of \a widget.
bool tst_GalleryTouch::drag(const QWidget* widget, const QPoint& distance) const
{
    const QPoint start = widget->mapToGlobal(widget->rect().center());
    return XPointer::drag(start, start + distance);
}

void tst_GalleryTouch::chooseTool(int index)
{
    auto* choice = m_window->findChild<QComboBox*>(QStringLiteral("toolChoice"));
    QVERIFY(XPointer::tap(*choice));
    const QAbstractItemView* items = choice->view();
    QTRY_VERIFY(items->isVisible());
    const QRect item = items->visualRect(choice->model()->index(index, 0));
    QVERIFY(item.height() >= 40);
    QVERIFY(XPointer::tap(*items->viewport(), item.center()));
    QTRY_COMPARE(choice->currentIndex(), index);
}

KeypadLineEdit* tst_GalleryTouch::field(const QString& name) const
{
    for (auto* field : m_window->page()->findChildren<KeypadLineEdit*>()) {
        if (field->accessibleName().startsWith(name))
            return field;
    }
    return nullptr;
}

PropertyRow* tst_GalleryTouch::row(const QByteArray& name) const
{
    for (PropertyRow* row : m_window->findChildren<PropertyRow*>()) {
        if (row->name() == name && row->isVisible())
            return row;
    }
    return nullptr;
}

QScrollArea* tst_GalleryTouch::pageArea() const
{
    return qobject_cast<QScrollArea*>(
        m_window->page()->parentWidget()->parentWidget()->parentWidget());
}

void tst_GalleryTouch::overviewOpensPage()
{
    const auto links = m_window->page()->findChildren<QPushButton*>(QStringLiteral("pageLink"));
    const auto* battery = *std::find_if(links.cbegin(), links.cend(), [](const QPushButton* link) {
        return link->text() == QLatin1String("SelectionControl");
    });
    QVERIFY(XPointer::tap(*battery));
    QTRY_COMPARE(m_window->page()->objectName(), QStringLiteral("own-controls"));
}

void tst_GalleryTouch::dragOverListChoosesNothing()
{
    const auto* list = m_window->findChild<QListWidget*>(QStringLiteral("pageList"));
    QVERIFY(list->verticalScrollBar()->maximum() > 0);
    const QPoint start = list->viewport()->mapToGlobal(list->viewport()->rect().center());

    // Slowly, too: a press that lasts is no tap yet.
    QVERIFY(XPointer::press(start));
    for (int step = 1; step <= 10; ++step)
        QVERIFY(XPointer::move(start - QPoint(0, 10 * step)));
    QVERIFY(XPointer::release());
    QTRY_VERIFY(list->verticalScrollBar()->value() > 0);
    QCOMPARE(m_window->page()->objectName(), QStringLiteral("overview"));
    QTRY_COMPARE(QScroller::scroller(list->viewport())->state(), QScroller::Inactive);

    QVERIFY(XPointer::tap(*list->viewport(), list->visualItemRect(list->item(5)).center()));
    QTRY_COMPARE(m_window->page()->objectName(), QStringLiteral("text-entry"));
}

/// Pressed, held until the keypad opens, and dragged away from: the next drag scrolls.
void tst_GalleryTouch::heldFieldThatIsDraggedLeavesAreaScrollable()
{
    m_window->showPage(QStringLiteral("text-entry"));
    chooseTool(3);
    KeypadLineEdit* address = field(QStringLiteral("IP address"));
    const QPoint start = address->mapToGlobal(address->rect().center());
    QVERIFY(XPointer::press(start));
    QTRY_VERIFY(address->keypad() && address->keypad()->isVisible());
    for (int step = 1; step <= 6; ++step)
        QVERIFY(XPointer::move(start - QPoint(0, 12 * step)));
    QVERIFY(XPointer::release());
    QVERIFY(XPointer::key("Escape"));
    QTRY_VERIFY(!address->keypad()->isVisible());
    QTRY_COMPARE(QScroller::scroller(pageArea()->viewport())->state(), QScroller::Inactive);

    const int before = pageArea()->verticalScrollBar()->value();
    QVERIFY(drag(pageArea()->viewport(), QPoint(0, -60)));
    QTRY_VERIFY(pageArea()->verticalScrollBar()->value() > before);
    const auto fields = m_window->page()->findChildren<KeypadLineEdit*>();
    for (const KeypadLineEdit* other : fields)
        QVERIFY(!other->keypad() || !other->keypad()->isVisible());
}

void tst_GalleryTouch::coveredFieldComesIntoView()
{
    m_window->showPage(QStringLiteral("text-entry"));
    chooseTool(3);
    KeypadLineEdit* name = field(QStringLiteral("Name"));
    const auto top = [this, name] { return name->mapTo(pageArea()->viewport(), QPoint()).y(); };
    pageArea()->verticalScrollBar()->setValue(top() + name->height() / 2); // half of it
    QCOMPARE(top(), -name->height() / 2);
    QVERIFY(XPointer::tap(*name, QPoint(name->width() / 2, name->height() - 6)));
    QTRY_VERIFY(name->keypad() && name->keypad()->isVisible());
    QVERIFY(top() >= 0);
    QVERIFY(
        !name->keypad()->geometry().intersects(QRect(name->mapToGlobal(QPoint()), name->size())));
    QVERIFY(XPointer::key("Escape"));
    QTRY_VERIFY(!name->keypad()->isVisible());
}

void tst_GalleryTouch::choosesToolAndReadsSignals()
{
    m_window->showPage(QStringLiteral("switch"));
    chooseTool(3);
    auto* control = m_window->page()->findChild<Switch*>();
    QVERIFY(XPointer::tap(*control));
    QTRY_VERIFY(control->isChecked());
    const QString log = m_window->findChild<SignalLog*>()->toPlainText();
    QVERIFY2(log.contains(QStringLiteral("clicked(true)")), qPrintable(log));
}

void tst_GalleryTouch::editsNumberByKeypad()
{
    m_window->showPage(QStringLiteral("battery"));
    QWidget* battery = m_window->page()->demoWidgets().at(2).widget;
    QVERIFY(XPointer::tap(*battery));
    QTRY_COMPARE(m_window->findChild<PropertyEditor*>()->target(), battery);
    auto* number = row("chargePercentage")->findChild<KeypadLineEdit*>();
    QVERIFY(XPointer::tap(*number));
    QTRY_VERIFY(number->keypad() && number->keypad()->isVisible());
    QTRY_VERIFY(number->hasSelectedText());
    for (const char* name : {"7", "OK"}) {
        const auto keys = number->keypad()->findChildren<QPushButton*>();
        for (const QPushButton* key : keys) {
            if (key->accessibleName() == QLatin1String(name))
                QVERIFY(XPointer::tap(*key));
        }
    }
    QTRY_COMPARE(hiddenvalues::value(*battery, "chargePercentage"), QVariant(7));
    QTRY_VERIFY(!number->keypad()->isVisible());
}

void tst_GalleryTouch::resetsByTap()
{
    m_window->showPage(QStringLiteral("battery"));
    QWidget* battery = m_window->page()->demoWidgets().at(2).widget;
    QVERIFY(XPointer::tap(*battery));
    QTRY_COMPARE(m_window->findChild<PropertyEditor*>()->target(), battery);
    const PropertyRow* charge = row("chargePercentage");
    QVERIFY(XPointer::tap(*charge->findChild<QToolButton*>(QStringLiteral("stepUp"))));
    QTRY_COMPARE(hiddenvalues::value(*battery, "chargePercentage"), QVariant(51));
    const auto* reset = charge->findChild<QToolButton*>(QStringLiteral("resetButton"));
    QTRY_VERIFY(reset->isVisible());
    QVERIFY(XPointer::tap(*reset));
    QTRY_COMPARE(hiddenvalues::value(*battery, "chargePercentage"), QVariant(50));
}

/// From one of them: it is not selected.
void tst_GalleryTouch::dragsFiles()
{
    QTemporaryDir directory;
    for (int number = 0; number < 60; ++number) {
        QFile file(directory.filePath(QStringLiteral("track %1.ogg").arg(number)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    delete m_window;
    m_window = new GalleryWindow(allPages({directory.path()}));
    m_window->showPage(QStringLiteral("file-browser"));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    const auto* view =
        m_window->page()->findChild<ui::FileBrowserWidget*>()->findChild<QListView*>();
    QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 60);
    const QScrollBar* bar = view->horizontalScrollBar();
    // The files come in any order, and are laid out anew when they have been sorted.
    QTRY_VERIFY(view->indexAt(QPoint(20, 20)).data() == QStringLiteral("track 0.ogg"));
    QTRY_VERIFY(bar->maximum() > 120);

    QVERIFY(view->indexAt(view->viewport()->rect().center()).isValid());
    // As a user would, once more if the first drag came while the window was still being arranged.
    bool dragged = false;
    for (int attempt = 0; attempt < 2 && !dragged; ++attempt) {
        QVERIFY(drag(view->viewport(), QPoint(-120, 0)));
        dragged = QTest::qWaitFor([&] { return bar->value() > 60; }, 2000);
    }
    QVERIFY(dragged);
    QTRY_COMPARE(QScroller::scroller(view->viewport())->state(), QScroller::Inactive);
    QVERIFY(!view->selectionModel()->hasSelection());

    const QModelIndex index = view->indexAt(view->viewport()->rect().center());
    QVERIFY(XPointer::tap(*view->viewport(), view->visualRect(index).center()));
    QTRY_COMPARE(m_window->page()->findChild<QLabel*>(QStringLiteral("selection"))->text(),
                 QStringLiteral("Selected: ") + index.data().toString());
}

void tst_GalleryTouch::choosesFromMenuOfPath()
{
    m_window->showPage(QStringLiteral("path"));
    auto* bar = m_window->page()->findChild<BreadCrumbsWidget*>();
    const auto* more = bar->findChild<QPushButton*>();
    const auto* directory = m_window->page()->findChild<QLabel*>(QStringLiteral("directory"));
    QTRY_VERIFY(more->isVisible());
    QStringList offered;
    test::whenMenuOpens(this, [&offered](QMenu& menu) {
        const QList<QAction*> actions = menu.actions();
        for (QAction* action : actions) {
            QVERIFY(menu.actionGeometry(action).height() >= 40);
            offered.append(action->text());
        }
        XPointer::tap(menu, menu.actionGeometry(actions.constLast()).center());
    });
    QVERIFY(XPointer::tap(*more));
    QTRY_VERIFY(!offered.isEmpty());
    QTRY_VERIFY(directory->text().endsWith(QLatin1Char('/') + offered.constLast()));
}

/// What a first tap makes appear moves nothing away from the second one.
void tst_GalleryTouch::stepsByTapsAtOnePlace()
{
    m_window->showPage(QStringLiteral("battery"));
    QWidget* battery = m_window->page()->demoWidgets().at(2).widget;
    QVERIFY(XPointer::tap(*battery));
    QTRY_COMPARE(m_window->findChild<PropertyEditor*>()->target(), battery);
    const auto* step = row("chargePercentage")->findChild<QToolButton*>(QStringLiteral("stepUp"));
    const QPoint place = step->mapToGlobal(step->rect().center());
    for (const int percent : {51, 52, 53}) {
        QVERIFY(XPointer::press(place));
        QVERIFY(XPointer::release());
        QTRY_COMPARE(hiddenvalues::value(*battery, "chargePercentage"), QVariant(percent));
    }
}

const test::Registration<tst_GalleryTouch> registration;

#include "tst_GalleryTouch.moc"
