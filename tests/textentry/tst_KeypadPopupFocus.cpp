#include "EditForm.h"
#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "QtVersions.h"
#include "SignalLog.h"

#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QWindow>

using test::EditForm;
using test::SignalLog;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace {

/// A form whose field has the focus, with a pop-up under the field.
class PopupForm : public EditForm<ui::LineEdit>
{
public:
    PopupForm()
        : popup(new KeypadPopup(field, QStringLiteral("Title"), KeyboardType::Integer, -1))
    {
        field->setText(QStringLiteral("some text"));
    }

    /// Shows the form and, with the focus in the field, the pop-up.
    bool showPopup()
    {
        if (!showActive())
            return false;
        field->setFocus();
        QCoreApplication::processEvents(); // selects the text
        popup->locatePopup();
        popup->show();
        return QTest::qWaitForWindowExposed(popup);
    }

    /// A click as the window system reports it, unlike QTest's clicks on widgets.
    void clickWindow(const QPoint& globalPosition)
    {
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, mapFromGlobal(globalPosition));
    }

    KeypadPopup* const popup;
};

QPoint globalCenter(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

/// Notes the mouse events of a widget.
class MouseRecorder : public QObject
{
public:
    explicit MouseRecorder(QWidget* widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (auto* mouse = dynamic_cast<QMouseEvent*>(event))
            seen.append({mouse->type(), test::positionOf(*mouse), test::globalPositionOf(*mouse),
                         mouse->button(), mouse->buttons(), mouse->modifiers()});
        return false;
    }

    struct Seen
    {
        QEvent::Type type;
        QPointF position;
        QPointF globalPosition;
        Qt::MouseButton button;
        Qt::MouseButtons buttons;
        Qt::KeyboardModifiers modifiers;
    };
    QVector<Seen> seen;
};

/// Notes why a widget gets the focus.
class FocusInRecorder : public QObject
{
public:
    explicit FocusInRecorder(QWidget* widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn)
            reasons.append(static_cast<QFocusEvent*>(event)->reason());
        return false;
    }

    QVector<Qt::FocusReason> reasons;
};

} // namespace

Q_DECLARE_METATYPE(QEvent::Type)
Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Qt::MouseButtons)

/// Focus and mouse: what the pop-up leaves with the edited widget.
class tst_KeypadPopupFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void showingIsNoCancel();
    void secondFocusLossGoesThrough();
    void everyShowingIsForgivenOnce();
    void hiddenPopupForgivesNothing();
    void focusComesBackWithTheWindow();
    void otherEventsAndWidgetsPass();
    void keyboardStaysWithTheField();

    void tapOnTheFieldReachesIt();
    void tapOnAChildOfTheField();
    void passedOnEvent_data();
    void passedOnEvent();
    void tapOnTheSubtitle();
    void tapElsewhereCloses_data();
    void tapElsewhereCloses();
    void releaseOfTheOpeningTap_data();
    void releaseOfTheOpeningTap();
    void keysArePressedByMouse();
};

void tst_KeypadPopupFocus::showingIsNoCancel()
{
    PopupForm form;
    SignalLog log(form.field);
    QVERIFY(form.showPopup());
    QCOMPARE(log.take(), QStringList());
    QVERIFY(form.field->hasFocus());
    QVERIFY(form.popup->isVisible());
    QCOMPARE(form.field->selectedText(), QStringLiteral("some text"));
}

void tst_KeypadPopupFocus::secondFocusLossGoesThrough()
{
    PopupForm form;
    QVERIFY(form.showPopup());
    SignalLog log(form.field);
    form.field->setText(QStringLiteral("new"));

    form.other->setFocus();
    QVERIFY(form.popup->isVisible());
    QVERIFY(!form.field->hasFocus());
    QCOMPARE(log.take(),
             (QStringList{"editingFinished", "resultValidated(true)", "textEdited(some text)",
                          "editingFinished", "signalCancelKey"}));
}

void tst_KeypadPopupFocus::everyShowingIsForgivenOnce()
{
    PopupForm form;
    QVERIFY(form.showPopup());
    SignalLog log(form.field);
    for (int i = 0; i < 3; ++i) {
        form.popup->hide();
        QVERIFY(form.field->hasFocus());
        form.popup->show();
        QVERIFY(form.field->hasFocus());
        QCOMPARE(log.take(), QStringList());
    }
    form.other->setFocus();
    QVERIFY(log.take().contains(QStringLiteral("signalCancelKey")));
}

void tst_KeypadPopupFocus::hiddenPopupForgivesNothing()
{
    PopupForm form;
    QVERIFY(form.showActive());
    form.field->setFocus();
    SignalLog log(form.field);
    form.other->setFocus();
    QVERIFY(form.other->hasFocus());
    QVERIFY(log.take().contains(QStringLiteral("signalCancelKey")));

    // Nor does a focus loss before the showing count as the one that comes with it.
    form.field->setFocus();
    form.popup->show();
    QVERIFY(form.field->hasFocus());
    QCOMPARE(log.take(), QStringList());
}

void tst_KeypadPopupFocus::focusComesBackWithTheWindow()
{
    PopupForm form;
    QVERIFY(form.showActive());
    QWidget dialog;
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    form.popup->show();
    QCoreApplication::processEvents();
    QVERIFY(QGuiApplication::focusWindow() != form.windowHandle());

    QFocusEvent out(QEvent::FocusOut);
    QVERIFY(form.popup->eventFilter(form.field, &out));
    // QApplication takes no note of it while a pop-up is open.
    QTRY_COMPARE(QGuiApplication::focusWindow(), form.windowHandle());
    QCOMPARE(form.focusWidget(), form.field);
}

void tst_KeypadPopupFocus::otherEventsAndWidgetsPass()
{
    PopupForm form;
    QVERIFY(form.showActive());
    form.popup->show(); // the field had no focus, so the focus loss is still to come
    FocusInRecorder recorder(form.field);
    QFocusEvent in(QEvent::FocusIn);
    QFocusEvent out(QEvent::FocusOut);
    QEvent other(QEvent::ToolTip);
    QVERIFY(!form.popup->eventFilter(form.field, &in));
    QVERIFY(!form.popup->eventFilter(form.field, &other));
    QVERIFY(!form.popup->eventFilter(form.other, &out));
    QVERIFY(form.popup->eventFilter(form.field, &out));
    QVERIFY(form.field->hasFocus());
    // A keypad line edit would refuse the focus for the reason of a pop-up.
    QCOMPARE(recorder.reasons, QVector<Qt::FocusReason>{Qt::OtherFocusReason});
    QVERIFY(!form.popup->eventFilter(form.field, &out));
}

void tst_KeypadPopupFocus::keyboardStaysWithTheField()
{
    PopupForm form;
    QVERIFY(form.showPopup());
    // From the window system, keys go to the pop-up while it is open.
    QTest::keyClick(form.popup->windowHandle(), '7');
    QCOMPARE(form.field->text(), QStringLiteral("7"));
    SignalLog log(form.field);
    QTest::keyClick(form.popup->windowHandle(), Qt::Key_Return);
    QCOMPARE(log.take(), (QStringList{"valueChanged", "editingFinished", "signalOkKey"}));
    QVERIFY(form.popup->isVisible());
}

void tst_KeypadPopupFocus::tapOnTheFieldReachesIt()
{
    PopupForm form;
    QVERIFY(form.showPopup());
    SignalLog log(form.field);
    form.clickWindow(form.field->mapToGlobal(QPoint(3, 15)));
    QCOMPARE(form.field->cursorPosition(), 0);
    QVERIFY(!form.field->hasSelectedText());
    QVERIFY(form.popup->isVisible());
    QVERIFY(form.field->hasFocus());
    QCOMPARE(log.take(), QStringList());
}

void tst_KeypadPopupFocus::tapOnAChildOfTheField()
{
    PopupForm form;
    form.field->setClearButtonEnabled(true);
    QVERIFY(form.showPopup());
    auto* button = form.field->findChild<QToolButton*>();
    QVERIFY(button);
    form.clickWindow(globalCenter(button));
    QCOMPARE(form.field->text(), QString());
    QVERIFY(form.popup->isVisible());
}

void tst_KeypadPopupFocus::passedOnEvent_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::MouseButtons>("buttons");
    QTest::newRow("press") << QEvent::MouseButtonPress << Qt::RightButton
                           << Qt::MouseButtons(Qt::RightButton | Qt::MiddleButton);
    QTest::newRow("release") << QEvent::MouseButtonRelease << Qt::LeftButton
                             << Qt::MouseButtons(Qt::MiddleButton);
    QTest::newRow("double click") << QEvent::MouseButtonDblClick << Qt::LeftButton
                                  << Qt::MouseButtons(Qt::LeftButton);
    QTest::newRow("move") << QEvent::MouseMove << Qt::NoButton << Qt::MouseButtons(Qt::LeftButton);
}

void tst_KeypadPopupFocus::passedOnEvent()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::MouseButtons, buttons);
    PopupForm form;
    QVERIFY(form.showPopup());
    MouseRecorder recorder(form.field);
    const QPoint inField(50, 12);
    const QPoint global = form.field->mapToGlobal(inField);
    const QPointF inPopup = form.popup->mapFromGlobal(global) + QPointF(-0.4, 0.4);

    QMouseEvent event(type, inPopup, QPointF(5000, 5000), button, buttons,
                      Qt::ShiftModifier | Qt::AltModifier);
    QVERIFY(QCoreApplication::sendEvent(form.popup, &event));
    QCOMPARE(recorder.seen.size(), 1);
    const MouseRecorder::Seen seen = recorder.seen.first();
    QCOMPARE(seen.type, type);
    QCOMPARE(seen.position, QPointF(inField));
    QCOMPARE(seen.globalPosition, QPointF(global));
    QCOMPARE(seen.button, button);
    QCOMPARE(seen.buttons, buttons);
    QCOMPARE(seen.modifiers, Qt::ShiftModifier | Qt::AltModifier);
    QVERIFY(form.popup->isVisible());
}

void tst_KeypadPopupFocus::tapOnTheSubtitle()
{
    PopupForm form;
    QVERIFY(form.showPopup());
    MouseRecorder recorder(form.field);
    const auto* label = form.popup->findChild<QLabel*>();
    QTest::mouseClick(form.popup->windowHandle(), Qt::LeftButton, {},
                      form.popup->mapFromGlobal(globalCenter(label)));
    QVERIFY(form.popup->isVisible());
    QVERIFY(recorder.seen.isEmpty());
}

void tst_KeypadPopupFocus::tapElsewhereCloses_data()
{
    QTest::addColumn<QPoint>("position"); // in the form
    QTest::newRow("another field") << QPoint(30, 10);
    QTest::newRow("the form") << QPoint(390, 190);
    QTest::newRow("left of the field") << QPoint(19, 30);
    QTest::newRow("above the field") << QPoint(50, 19);
}

void tst_KeypadPopupFocus::tapElsewhereCloses()
{
    QFETCH(QPoint, position);
    PopupForm form;
    form.other->setGeometry(0, 0, 200, 20);
    QVERIFY(form.showPopup());
    form.clickWindow(form.mapToGlobal(position));
    QVERIFY(!form.popup->isVisible());
}

void tst_KeypadPopupFocus::releaseOfTheOpeningTap_data()
{
    QTest::addColumn<QString>("over");
    QTest::newRow("the field") << "";
    QTest::newRow("OK") << "OK";
    QTest::newRow("a digit") << "7";
    QTest::newRow("Backspace") << "Backspace";
    QTest::newRow("Cancel") << "Cancel";
}

void tst_KeypadPopupFocus::releaseOfTheOpeningTap()
{
    QFETCH(QString, over);
    PopupForm form;
    QVERIFY(form.showActive());
    QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, form.field->geometry().center());
    QVERIFY(form.field->hasFocus());
    QCoreApplication::processEvents();
    form.popup->locatePopup();
    form.popup->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.popup));
    SignalLog log(form.field);
    const QSignalSpy ok(form.popup, &KeypadPopup::signalOk);
    const QSignalSpy cancel(form.popup, &KeypadPopup::signalCancel);

    const QWidget* widget = form.field;
    if (!over.isEmpty())
        widget = test::keypadKey(*form.popup, over);
    QTest::mouseRelease(form.popup->windowHandle(), Qt::LeftButton, {},
                        form.popup->mapFromGlobal(globalCenter(widget)));
    QVERIFY(form.popup->isVisible());
    QCOMPARE(ok.count() + cancel.count(), 0);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(form.field->text(), QStringLiteral("some text"));
}

void tst_KeypadPopupFocus::keysArePressedByMouse()
{
    PopupForm form;
    QVERIFY(form.showPopup());
    const auto tap = [&](const char* key) {
        const QPoint center = globalCenter(test::keypadKey(*form.popup, QString::fromUtf8(key)));
        QTest::mouseClick(form.popup->windowHandle(), Qt::LeftButton, {},
                          form.popup->mapFromGlobal(center));
    };
    tap("4");
    tap("2");
    QCOMPARE(form.field->text(), QStringLiteral("42"));
    tap("Backspace");
    QCOMPARE(form.field->text(), QStringLiteral("4"));
    QVERIFY(form.field->hasFocus());
}

const test::Registration<tst_KeypadPopupFocus> registration;

#include "tst_KeypadPopupFocus.moc"
