#include "EditForm.h"
#include "EventLoop.h"
#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "SignalLog.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QLabel>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPushButton>
#include <QSignalSpy>
#include <QValidator>
#include <QWindow>

using test::EditForm;
using test::SignalLog;
using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace {

using Form = EditForm<KeypadLineEdit>;

/// Gives the field the focus and waits for its pop-up.
bool openKeypad(Form& form)
{
    form.field->setFocus();
    return QTest::qWaitFor(
               [&] { return form.field->keypad() && form.field->keypad()->isVisible(); })
        && QTest::qWaitForWindowExposed(form.field->keypad());
}

bool waitUntilHidden(const QWidget* widget)
{
    return QTest::qWaitFor([&] { return !widget->isVisible(); });
}

/// Opens the base's functions and counts the calls of the field's own virtual function.
class DerivedEdit : public KeypadLineEdit
{
public:
    using KeypadLineEdit::KeypadLineEdit;
    void setMaxLength(int length) override
    {
        ++calls;
        KeypadLineEdit::setMaxLength(length);
    }
    int calls = 0;
};

} // namespace

/// The line edit that opens a keypad.
class tst_KeypadLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void interface();
    void textProperty();
    void typeIsHandedOn_data();
    void typeIsHandedOn();
    void typeWithoutKeypad();

    void focusOpensTheKeypad();
    void onePopupForTheLifeOfTheField();
    void severalShowRequests();
    void severalHideRequests();
    void hideRequestsNeedAVisiblePopup();
    void deferredHideBeatsALaterShowRequest();
    void keypadOk();
    void keypadCancel();
    void keypadWithoutFocus_data();
    void keypadWithoutFocus();
    void hardwareKeys_data();
    void hardwareKeys();
    void tapOutside();
    void tapOnAnotherField();
    void popupFocusReasonIsRefused();
    void popupFocusLossFinishesEditing();
    void programmaticFocusChange();
    void invalidResultDisablesOk();
    void secondRound();

    void maxLengthKeepsTheSelection_data();
    void maxLengthKeepsTheSelection();
    void maxLengthIsVirtual();
};

void tst_KeypadLineEdit::interface()
{
    const QMetaObject& meta = KeypadLineEdit::staticMetaObject;
    QCOMPARE(meta.className(), "ui::KeypadLineEdit");
    QCOMPARE(meta.superClass(), &ui::LineEdit::staticMetaObject);
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(signatures, (QStringList{"startKeypad()", "onOkKey()", "onCancelKey()"}));

    const KeypadLineEdit edit(nullptr, KeyboardType::Text);
    QVERIFY(!edit.parent());
    QVERIFY(!edit.keypad());
    QCOMPARE(edit.focusPolicy(), Qt::ClickFocus);
    QVERIFY(edit.findChildren<QWidget*>().isEmpty());
}

void tst_KeypadLineEdit::textProperty()
{
    const QMetaObject& meta = KeypadLineEdit::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
    const QMetaProperty text = meta.property(meta.propertyOffset());
    QCOMPARE(text.name(), "text");
    QCOMPARE(text.userType(), int(QMetaType::QString));
    QVERIFY(text.isReadable() && text.isWritable());
    QVERIFY(!text.hasNotifySignal());

    KeypadLineEdit edit(nullptr, KeyboardType::Text);
    QVERIFY(edit.setProperty("text", QStringLiteral("written")));
    QCOMPARE(edit.text(), QStringLiteral("written"));
    QCOMPARE(edit.property("text"), QVariant(QStringLiteral("written")));
}

void tst_KeypadLineEdit::typeIsHandedOn_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("keys");
    QTest::newRow("integer") << int(KeyboardType::Integer) << 14;
    QTest::newRow("decimal") << int(KeyboardType::Decimal) << 15;
    QTest::newRow("text") << int(KeyboardType::Text) << 33;
}

void tst_KeypadLineEdit::typeIsHandedOn()
{
    QFETCH(int, type);
    QFETCH(int, keys);
    KeypadLineEdit edit(nullptr, KeyboardType(type));
    edit.showKeypad();
    QCOMPARE(edit.keypad()->parent(), &edit);
    QCOMPARE(test::shownKeys(*edit.keypad()).size(), keys);
    QCOMPARE(edit.keypad()->findChild<QLabel*>()->text(), QString());
}

void tst_KeypadLineEdit::typeWithoutKeypad()
{
    QTest::ignoreMessage(QtWarningMsg, "IKeypad::create: no keypad for the type 99");
    Form form(KeyboardType(99));
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    SignalLog log(form.field);
    QTest::keyClick(form.field->keypad()->windowHandle(), 'a');
    QTest::keyClick(form.field->keypad()->windowHandle(), 'b');
    QTest::keyClick(form.field->keypad()->windowHandle(), Qt::Key_Return);
    QCOMPARE(form.field->text(), QStringLiteral("ab"));
    QVERIFY(waitUntilHidden(form.field->keypad()));
    QCOMPARE(log.take().mid(4), (QStringList{"valueChanged", "editingFinished", "signalOkKey"}));
}

void tst_KeypadLineEdit::focusOpensTheKeypad()
{
    Form form(KeyboardType::Integer);
    form.field->setText(QStringLiteral("old"));
    QVERIFY(form.showActive());
    SignalLog log(form.field);
    bool visibleAtStart = false;
    connect(form.field, &KeypadLineEdit::startKeypad, &form,
            [&] { visibleAtStart = form.field->keypad()->isVisible(); });

    form.field->setFocus();
    QVERIFY(form.field->keypad());
    QVERIFY(!form.field->keypad()->isVisible()); // not inside the focus handler
    const QPoint expected = form.field->mapToGlobal(QPoint(0, form.field->height()));
    QCOMPARE(log.take(), QStringList());
    QTRY_VERIFY(form.field->keypad()->isVisible());
    test::waitUntilIdle();
    QCOMPARE(log.take(), QStringList{"startKeypad"});
    QVERIFY(visibleAtStart);
    // The offscreen plugin adds the frame of a window to the position of the pop-up.
    QVERIFY((form.field->keypad()->pos() - expected).manhattanLength() <= 4);
    QVERIFY(form.field->hasFocus());
    QCOMPARE(form.field->selectedText(), QStringLiteral("old"));
}

void tst_KeypadLineEdit::onePopupForTheLifeOfTheField()
{
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    QVERIFY(!form.field->keypad());
    QVERIFY(openKeypad(form));
    const KeypadPopup* popup = form.field->keypad();
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(form.field, Qt::Key_Return);
        QVERIFY(waitUntilHidden(popup));
        QVERIFY(openKeypad(form));
        QCOMPARE(form.field->keypad(), popup);
    }
    QCOMPARE(form.findChildren<KeypadPopup*>().size(), 1);
}

void tst_KeypadLineEdit::severalShowRequests()
{
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    const QSignalSpy started(form.field, &KeypadLineEdit::startKeypad);
    form.field->showKeypad();
    form.field->showKeypad();
    form.field->showKeypad();
    QVERIFY(!form.field->keypad()->isVisible());
    QTRY_VERIFY(form.field->keypad()->isVisible());
    test::waitUntilIdle();
    QCOMPARE(started.count(), 1);

    form.field->showKeypad(); // visible already
    test::waitUntilIdle();
    QCOMPARE(started.count(), 1);
}

void tst_KeypadLineEdit::severalHideRequests()
{
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    form.field->showKeypad();
    QTRY_VERIFY(form.field->keypad()->isVisible());
    form.field->hideKeypad();
    form.field->hideKeypad();
    QVERIFY(form.field->keypad()->isVisible());
    QVERIFY(waitUntilHidden(form.field->keypad()));
    test::waitUntilIdle();
    QVERIFY(!form.field->keypad()->isVisible());
}

void tst_KeypadLineEdit::hideRequestsNeedAVisiblePopup()
{
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    form.field->hideKeypad();
    QVERIFY(!form.field->keypad());

    // Nothing to hide yet, so the request does not take back the showing that is under way.
    form.field->showKeypad();
    form.field->hideKeypad();
    test::waitUntilIdle();
    QVERIFY(form.field->keypad()->isVisible());
}

void tst_KeypadLineEdit::deferredHideBeatsALaterShowRequest()
{
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    form.field->showKeypad();
    QTRY_VERIFY(form.field->keypad()->isVisible());
    form.field->hideKeypad();
    form.field->showKeypad(); // still visible: nothing happens
    test::waitUntilIdle();
    QVERIFY(!form.field->keypad()->isVisible());
}

void tst_KeypadLineEdit::keypadOk()
{
    Form form(KeyboardType::Integer);
    form.field->setText(QStringLiteral("1"));
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    SignalLog log(form.field);

    test::tapKey(*form.field->keypad(), QStringLiteral("4"));
    test::tapKey(*form.field->keypad(), QStringLiteral("2"));
    test::tapKey(*form.field->keypad(), QStringLiteral("OK"));
    QVERIFY(form.field->keypad()->isVisible()); // hidden with the next events
    QVERIFY(!form.field->hasFocus());
    QVERIFY(waitUntilHidden(form.field->keypad()));
    test::waitUntilIdle();
    QCOMPARE(form.field->text(), QStringLiteral("42"));
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited(4)", "resultValidated(true)",
                          "textEdited(42)", "valueChanged", "editingFinished"}));
    QVERIFY(!form.field->hasFocus());
}

void tst_KeypadLineEdit::keypadCancel()
{
    Form form(KeyboardType::Integer);
    form.field->setText(QStringLiteral("1"));
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    SignalLog log(form.field);

    test::tapKey(*form.field->keypad(), QStringLiteral("4"));
    test::tapKey(*form.field->keypad(), QStringLiteral("Cancel"));
    QVERIFY(form.field->keypad()->isVisible());
    QVERIFY(waitUntilHidden(form.field->keypad()));
    test::waitUntilIdle();
    QCOMPARE(form.field->text(), QStringLiteral("1"));
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited(4)", "resultValidated(true)",
                          "textEdited(1)", "editingFinished"}));
    QVERIFY(!form.field->hasFocus());
}

void tst_KeypadLineEdit::keypadWithoutFocus_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("OK") << "OK";
    QTest::newRow("Cancel") << "Cancel";
}

void tst_KeypadLineEdit::keypadWithoutFocus()
{
    QFETCH(QString, key);
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    form.field->showKeypad();
    QTRY_VERIFY(form.field->keypad()->isVisible());
    QVERIFY(!form.field->hasFocus());
    test::tapKey(*form.field->keypad(), key);
    QVERIFY(waitUntilHidden(form.field->keypad()));
}

void tst_KeypadLineEdit::hardwareKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const QStringList ok{"valueChanged", "editingFinished", "signalOkKey"};
    const QStringList cancel{"resultValidated(true)", "textEdited(1)", "editingFinished",
                             "signalCancelKey"};
    QTest::newRow("Return") << Qt::Key_Return << "4" << ok;
    QTest::newRow("Enter") << Qt::Key_Enter << "4" << ok;
    QTest::newRow("Escape") << Qt::Key_Escape << "1" << cancel;
}

void tst_KeypadLineEdit::hardwareKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    Form form(KeyboardType::Integer);
    form.field->setText(QStringLiteral("1"));
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    QWindow* window = form.field->keypad()->windowHandle(); // which has the keyboard now

    QTest::keyClick(window, Qt::Key_4);
    SignalLog log(form.field);
    QTest::keyClick(window, key);
    QVERIFY(waitUntilHidden(form.field->keypad()));
    test::waitUntilIdle();
    QCOMPARE(form.field->text(), text);
    QCOMPARE(log.take(), expected);
    QVERIFY(!form.field->hasFocus());
}

void tst_KeypadLineEdit::tapOutside()
{
    Form form(KeyboardType::Integer);
    form.field->setText(QStringLiteral("1"));
    form.resize(800, 400);
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    test::tapKey(*form.field->keypad(), QStringLiteral("4"));
    SignalLog log(form.field);

    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(780, 380));
    QVERIFY(!form.field->keypad()->isVisible());
    test::waitUntilIdle();
    QCOMPARE(form.field->text(), QStringLiteral("1"));
    QCOMPARE(log.take(),
             (QStringList{"editingFinished", "resultValidated(true)", "textEdited(1)",
                          "editingFinished", "signalCancelKey"}));
    QVERIFY(!form.field->hasFocus());
    QVERIFY(!form.field->keypad()->isVisible());
}

void tst_KeypadLineEdit::tapOnAnotherField()
{
    Form form(KeyboardType::Integer);
    form.resize(800, 400);
    KeypadLineEdit second(&form, KeyboardType::Text);
    second.setGeometry(500, 20, 100, 30);
    form.field->setText(QStringLiteral("1"));
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    test::tapKey(*form.field->keypad(), QStringLiteral("4"));

    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, second.geometry().center());
    QVERIFY(!form.field->keypad()->isVisible());
    QCOMPARE(form.field->text(), QStringLiteral("1"));
    // Qt gives the press that has closed a pop-up to nobody, or without the focus: tap again.
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, second.geometry().center());
    QTRY_VERIFY(second.hasFocus());
    QTRY_VERIFY(second.keypad() && second.keypad()->isVisible());
    test::waitUntilIdle();
    QVERIFY(second.keypad()->isVisible());
    QVERIFY(!form.field->keypad()->isVisible());
}

void tst_KeypadLineEdit::popupFocusReasonIsRefused()
{
    Form form(KeyboardType::Integer);
    form.field->setText(QStringLiteral("1"));
    QVERIFY(form.showActive());
    form.field->setFocus(Qt::PopupFocusReason);
    QVERIFY(!form.field->hasFocus());
    test::waitUntilIdle();
    QVERIFY(!form.field->keypad());
    QVERIFY(!form.field->hasSelectedText());
    QCOMPARE(form.field->text(), QString()); // the Cancel restores what no focus-in has saved yet
}

void tst_KeypadLineEdit::popupFocusLossFinishesEditing()
{
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    SignalLog log(form.field);
    QFocusEvent event(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(form.field, &event);
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited()", "editingFinished",
                          "signalCancelKey", "editingFinished"}));
    QVERIFY(waitUntilHidden(form.field->keypad()));

    // Without the pop-up nothing is added.
    const QStringList cancel{"editingFinished", "resultValidated(true)", "textEdited()",
                             "editingFinished", "signalCancelKey"};
    form.field->setText(QStringLiteral("5")); // QLineEdit has an edit to finish
    QCoreApplication::sendEvent(form.field, &event);
    QCOMPARE(log.take(), cancel);

    // Nor with somebody else's pop-up.
    QWidget foreign(&form, Qt::Popup);
    foreign.show();
    form.field->setText(QStringLiteral("5"));
    QCoreApplication::sendEvent(form.field, &event);
    QCOMPARE(log.take(), cancel);
}

void tst_KeypadLineEdit::programmaticFocusChange()
{
    Form form(KeyboardType::Integer);
    form.field->setText(QStringLiteral("1"));
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    test::tapKey(*form.field->keypad(), QStringLiteral("4"));
    SignalLog log(form.field);
    form.other->setFocus();
    QCOMPARE(log.take(),
             (QStringList{"editingFinished", "resultValidated(true)", "textEdited(1)",
                          "editingFinished", "signalCancelKey"}));
    QVERIFY(waitUntilHidden(form.field->keypad()));
    QCOMPARE(form.field->text(), QStringLiteral("1"));
    QVERIFY(form.other->hasFocus());
}

void tst_KeypadLineEdit::invalidResultDisablesOk()
{
    Form form(KeyboardType::Integer);
    form.field->setValidator(new QIntValidator(10, 99, form.field));
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    const KeypadPopup& popup = *form.field->keypad();
    const QPushButton* ok = test::keypadKey(popup, QStringLiteral("OK"));
    SignalLog log(form.field);
    test::tapKey(popup, QStringLiteral("4"));
    QVERIFY(!ok->isEnabled());
    test::tapKey(popup, QStringLiteral("OK"));
    QVERIFY(form.field->hasFocus());
    test::tapKey(popup, QStringLiteral("2"));
    QVERIFY(ok->isEnabled());
    test::tapKey(popup, QStringLiteral("OK"));
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(false)", "textEdited(4)", "resultValidated(true)",
                          "textEdited(42)", "valueChanged", "editingFinished"}));
}

void tst_KeypadLineEdit::secondRound()
{
    Form form(KeyboardType::Integer);
    QVERIFY(form.showActive());
    QVERIFY(openKeypad(form));
    test::tapKey(*form.field->keypad(), QStringLiteral("4"));
    test::tapKey(*form.field->keypad(), QStringLiteral("OK"));
    QVERIFY(waitUntilHidden(form.field->keypad()));
    SignalLog log(form.field);
    QVERIFY(openKeypad(form));
    QVERIFY(form.field->hasFocus());
    test::tapKey(*form.field->keypad(), QStringLiteral("5"));
    test::tapKey(*form.field->keypad(), QStringLiteral("Cancel"));
    QCOMPARE(form.field->text(), QStringLiteral("4"));
    QCOMPARE(log.take(),
             (QStringList{"startKeypad", "resultValidated(true)", "textEdited(5)",
                          "resultValidated(true)", "textEdited(4)", "editingFinished"}));
}

void tst_KeypadLineEdit::maxLengthKeepsTheSelection_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("maxLength");
    QTest::addColumn<int>("expectedStart");
    QTest::addColumn<QString>("expected");
    QTest::newRow("all") << 0 << 8 << 20 << 0 << "abcdefgh";
    QTest::newRow("all, shortened") << 0 << 8 << 3 << 0 << "abc";
    QTest::newRow("one character") << 4 << 1 << 20 << 4 << "e";
    QTest::newRow("middle") << 2 << 3 << 20 << 2 << "cde";
    QTest::newRow("middle, shortened") << 2 << 3 << 4 << 2 << "cd";
    QTest::newRow("selection cut off") << 5 << 3 << 5 << -1 << "";
    QTest::newRow("selection beyond the end") << 5 << 3 << 2 << -1 << "";
    QTest::newRow("none") << -1 << 0 << 4 << -1 << "";
    QTest::newRow("no text left") << 0 << 8 << 0 << -1 << "";
}

void tst_KeypadLineEdit::maxLengthKeepsTheSelection()
{
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(int, maxLength);
    QFETCH(int, expectedStart);
    QFETCH(QString, expected);
    KeypadLineEdit edit(nullptr, KeyboardType::Text);
    edit.setText(QStringLiteral("abcdefgh"));
    if (length > 0)
        edit.setSelection(start, length);

    edit.setMaxLength(maxLength);
    QCOMPARE(edit.maxLength(), maxLength);
    QCOMPARE(edit.text(), QStringLiteral("abcdefgh").left(maxLength));
    QCOMPARE(edit.selectionStart(), expectedStart);
    QCOMPARE(edit.selectedText(), expected);
}

void tst_KeypadLineEdit::maxLengthIsVirtual()
{
    DerivedEdit derived(nullptr, KeyboardType::Text);
    KeypadLineEdit& edit = derived;
    edit.setMaxLength(5);
    QCOMPARE(derived.calls, 1);
}

const test::Registration<tst_KeypadLineEdit> registration;

#include "tst_KeypadLineEdit.moc"
