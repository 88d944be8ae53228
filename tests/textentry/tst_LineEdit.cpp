#include "EditForm.h"
#include "PlatformMessages.h"
#include "SignalLog.h"

#include <ui/LineEdit.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QValidator>

using test::EditForm;
using test::SignalLog;

namespace {

/// As an application may write it: with functions of the base's names, and with its own validation.
class DerivedEdit : public ui::LineEdit
{
public:
    using LineEdit::LineEdit;

    void onOkKey()
    {
        calls.append(QStringLiteral("onOkKey"));
    }
    void onCancelKey()
    {
        calls.append(QStringLiteral("onCancelKey"));
    }

    QStringList calls;

protected:
    void textEditedSlot(const QString& text) override
    {
        calls.append(QStringLiteral("textEditedSlot(%1)").arg(text));
    }
};

QStringList ownSignatures(QMetaMethod::MethodType type)
{
    const QMetaObject& meta = ui::LineEdit::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    return signatures;
}

} // namespace

/// Committing and reverting.
class tst_LineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void construction();
    void interface();
    void signalsAndSlotsBySignature();
    void parentOwnsTheField();

    void okByKey_data();
    void okByKey();
    void okBySignal();
    void okBySignalReturnPressed();
    void okDoesNotAskTheValidator();
    void cancelByEscape();
    void cancelBySignal();
    void cancelWithoutFocus();
    void cancelByFocusLoss();
    void cancelByFocusLossWithUnacceptableText();
    void cancelByWindowDeactivation();
    void otherKeysGoToTheBase();
    void okAndCancelKeysGoNoFurther_data();
    void okAndCancelKeysGoNoFurther();

    void savedTextIsThatOfTheLastFocusIn();
    void savedTextIsThatAfterTheBaseClass();
    void stateAtEachSignal_data();
    void stateAtEachSignal();
    void keepsThePreviousBlocking_data();
    void keepsThePreviousBlocking();

    void selectsAllAfterFocusIn();
    void keepsASelection();
    void selectionIsDroppedWithTheField();
    void focusByClickOnly();
    void noContextMenu();
    void subclassFunctions();
};

void tst_LineEdit::construction()
{
    ui::LineEdit edit;
    QVERIFY(!edit.parent());
    QVERIFY(edit.text().isEmpty());
    QCOMPARE(edit.dynamicPropertyNames(), QList<QByteArray>{"inputValid"});
    QCOMPARE(edit.property("inputValid"), QVariant(true));
    QCOMPARE(edit.focusPolicy(), Qt::ClickFocus);
    QCOMPARE(edit.contextMenuPolicy(), Qt::NoContextMenu);
}

void tst_LineEdit::interface()
{
    QCOMPARE(ui::LineEdit::staticMetaObject.className(), "ui::LineEdit");
    QCOMPARE(ui::LineEdit::staticMetaObject.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(ownSignatures(QMetaMethod::Signal),
             (QStringList{"signalCancelKey()", "signalOkKey()", "signalClicked()",
                          "resultValidated(bool)", "valueChanged()"}));
    QCOMPARE(ownSignatures(QMetaMethod::Slot),
             (QStringList{"textEditedSlot(QString)", "onOkKey()", "onCancelKey()"}));
    const QMetaObject& meta = ui::LineEdit::staticMetaObject;
    QCOMPARE(meta.method(meta.indexOfSlot("onOkKey()")).access(), QMetaMethod::Protected);
    QCOMPARE(meta.propertyOffset(), meta.propertyCount());
}

void tst_LineEdit::signalsAndSlotsBySignature()
{
    ui::LineEdit edit;
    const QSignalSpy clicked(&edit, SIGNAL(signalClicked()));
    const QSignalSpy changed(&edit, SIGNAL(valueChanged()));
    Q_EMIT edit.signalClicked();
    QCOMPARE(clicked.count(), 1);
    QVERIFY(QMetaObject::invokeMethod(&edit, "onOkKey"));
    QCOMPARE(changed.count(), 1);
}

void tst_LineEdit::parentOwnsTheField()
{
    auto* parent = new QWidget;
    const QPointer<ui::LineEdit> edit = new ui::LineEdit(parent);
    delete parent;
    QVERIFY(!edit);
}

void tst_LineEdit::okByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_LineEdit::okByKey()
{
    QFETCH(Qt::Key, key);
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("ab"));
    SignalLog log(form.field);

    QTest::keyClick(form.field, key);
    QCOMPARE(log.take(), (QStringList{"valueChanged", "editingFinished", "signalOkKey"}));
    QCOMPARE(form.field->text(), QStringLiteral("oldab"));
    QVERIFY(!form.field->hasFocus());
}

void tst_LineEdit::okBySignal()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setFocus();
    form.field->setText(QStringLiteral("new"));
    SignalLog log(form.field);

    Q_EMIT form.field->signalOkKey();
    QCOMPARE(log.take(), (QStringList{"valueChanged", "editingFinished", "signalOkKey"}));
    QCOMPARE(form.field->text(), QStringLiteral("new"));
    QVERIFY(!form.field->hasFocus());
}

void tst_LineEdit::okBySignalReturnPressed()
{
    ui::LineEdit edit;
    SignalLog log(&edit);
    Q_EMIT edit.returnPressed();
    QCOMPARE(log.take(), (QStringList{"valueChanged", "editingFinished", "returnPressed"}));
}

void tst_LineEdit::okDoesNotAskTheValidator()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setValidator(new QIntValidator(10, 20, form.field));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("1"));
    SignalLog log(form.field);

    QTest::keyClick(form.field, Qt::Key_Return);
    QCOMPARE(log.take(), (QStringList{"valueChanged", "editingFinished", "signalOkKey"}));
    QCOMPARE(form.field->text(), QStringLiteral("1"));
}

void tst_LineEdit::cancelByEscape()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("ab"));
    SignalLog log(form.field);

    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited(old)", "editingFinished",
                          "signalCancelKey"}));
    QCOMPARE(form.field->text(), QStringLiteral("old"));
    QVERIFY(!form.field->hasFocus());
}

void tst_LineEdit::cancelBySignal()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    form.field->setText(QStringLiteral("new"));
    SignalLog log(form.field);

    Q_EMIT form.field->signalCancelKey();
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited(old)", "editingFinished",
                          "signalCancelKey"}));
    QCOMPARE(form.field->text(), QStringLiteral("old"));
    QVERIFY(!form.field->hasFocus());
}

void tst_LineEdit::cancelWithoutFocus()
{
    ui::LineEdit edit;
    edit.setText(QStringLiteral("never focused"));
    SignalLog log(&edit);

    QTest::keyClick(&edit, Qt::Key_Escape);
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited()", "editingFinished",
                          "signalCancelKey"}));
    QCOMPARE(edit.text(), QString());
}

void tst_LineEdit::cancelByFocusLoss()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("ab"));
    SignalLog log(form.field);

    QTest::mouseClick(form.other, Qt::LeftButton);
    QCOMPARE(log.take(),
             (QStringList{"editingFinished", "resultValidated(true)", "textEdited(old)",
                          "editingFinished", "signalCancelKey"}));
    QCOMPARE(form.field->text(), QStringLiteral("old"));
    QVERIFY(form.other->hasFocus());
}

void tst_LineEdit::cancelByFocusLossWithUnacceptableText()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("12"));
    form.field->setValidator(new QIntValidator(10, 20, form.field));
    form.field->setFocus();
    QTest::keyClick(form.field, Qt::Key_Backspace);
    SignalLog log(form.field);

    form.other->setFocus();
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited(12)", "editingFinished",
                          "signalCancelKey"}));
    QCOMPARE(form.field->text(), QStringLiteral("12"));
}

void tst_LineEdit::cancelByWindowDeactivation()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("ab"));

    QWidget dialog;
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_COMPARE(form.field->text(), QStringLiteral("old"));
    QVERIFY(!form.field->hasFocus());
}

void tst_LineEdit::otherKeysGoToTheBase()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("abc"));
    QTest::keyClick(form.field, Qt::Key_Left);
    QTest::keyClick(form.field, Qt::Key_Backspace);
    QCOMPARE(form.field->text(), QStringLiteral("ac"));
    QCOMPARE(form.field->cursorPosition(), 1);
}

void tst_LineEdit::okAndCancelKeysGoNoFurther_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Escape") << Qt::Key_Escape;
}

void tst_LineEdit::okAndCancelKeysGoNoFurther()
{
    class Parent : public QWidget
    {
    public:
        int keys = 0;

    protected:
        void keyPressEvent(QKeyEvent*) override
        {
            ++keys;
        }
    };

    QFETCH(Qt::Key, key);
    Parent parent;
    auto* edit = new ui::LineEdit(&parent);
    const QSignalSpy returnPressed(edit, &QLineEdit::returnPressed);

    QTest::keyPress(edit, key);
    QCOMPARE(parent.keys, 0);
    QCOMPARE(returnPressed.count(), 0);
    QTest::keyPress(edit, Qt::Key_F5);
    QCOMPARE(parent.keys, 1);

    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(edit, &event);
    QVERIFY(event.isAccepted());
}

void tst_LineEdit::savedTextIsThatOfTheLastFocusIn()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("first"));
    form.field->setFocus();
    form.field->setText(QStringLiteral("second"));
    QTest::keyClick(form.field, Qt::Key_Return);
    form.field->setText(QStringLiteral("third"));
    form.field->setFocus();
    form.field->setText(QStringLiteral("fourth"));
    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QStringLiteral("third"));
    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QStringLiteral("third"));
}

void tst_LineEdit::savedTextIsThatAfterTheBaseClass()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("first"));
    connect(form.field, &QLineEdit::selectionChanged, form.field, [&form] {
        if (form.field->text() == QLatin1String("first"))
            form.field->setText(QStringLiteral("second"));
    });
    form.field->setFocus(Qt::TabFocusReason); // for which QLineEdit selects the text at once
    form.field->setText(QStringLiteral("third"));
    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QStringLiteral("second"));
}

void tst_LineEdit::stateAtEachSignal_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("OK") << Qt::Key_Return
                        << QStringList{"valueChanged: new, focused", "editingFinished: new"};
    QTest::newRow("Cancel") << Qt::Key_Escape
                            << QStringList{"textEdited: old, focused", "editingFinished: old"};
}

void tst_LineEdit::stateAtEachSignal()
{
    QFETCH(Qt::Key, key);
    QFETCH(QStringList, expected);
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    form.field->setText(QStringLiteral("new"));
    QStringList states;
    const auto note = [&](const char* signal) {
        states.append(QStringLiteral("%1: %2").arg(QLatin1String(signal), form.field->text())
                      + (form.field->hasFocus() ? ", focused" : ""));
    };
    connect(form.field, &ui::LineEdit::valueChanged, &form, [&] { note("valueChanged"); });
    connect(form.field, &QLineEdit::textEdited, &form, [&] { note("textEdited"); });
    connect(form.field, &QLineEdit::editingFinished, &form, [&] { note("editingFinished"); });

    QTest::keyClick(form.field, key);
    QCOMPARE(states, expected);
}

void tst_LineEdit::keepsThePreviousBlocking_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<bool>("blocked");
    QTest::newRow("OK") << QByteArray("onOkKey") << false;
    QTest::newRow("Cancel") << QByteArray("onCancelKey") << false;
    QTest::newRow("OK, blocked by the application") << QByteArray("onOkKey") << true;
    QTest::newRow("Cancel, blocked by the application") << QByteArray("onCancelKey") << true;
}

void tst_LineEdit::keepsThePreviousBlocking()
{
    QFETCH(QByteArray, slot);
    QFETCH(bool, blocked);
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    SignalLog log(form.field);

    form.field->blockSignals(blocked);
    QVERIFY(QMetaObject::invokeMethod(form.field, slot.constData()));
    QCOMPARE(form.field->signalsBlocked(), blocked);
    QCOMPARE(log.take().isEmpty(), blocked);
    QVERIFY(!form.field->hasFocus());
}

void tst_LineEdit::selectsAllAfterFocusIn()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("some text"));
    form.field->setFocus();
    QVERIFY(!form.field->hasSelectedText());
    QTRY_COMPARE(form.field->selectedText(), QStringLiteral("some text"));
}

void tst_LineEdit::keepsASelection()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("some text"));
    form.field->setSelection(5, 2);
    form.field->setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(form.field->selectedText(), QStringLiteral("te"));
}

void tst_LineEdit::selectionIsDroppedWithTheField()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("some text"));
    form.field->setFocus();
    delete form.field;
    QCoreApplication::processEvents();
}

void tst_LineEdit::focusByClickOnly()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.other->setFocus();
    QTest::keyClick(&form, Qt::Key_Tab);
    QVERIFY(!form.field->hasFocus());
    QTest::keyClick(&form, Qt::Key_Backtab);
    QVERIFY(!form.field->hasFocus());

    QTest::mouseClick(form.field, Qt::LeftButton);
    QVERIFY(form.field->hasFocus());
}

void tst_LineEdit::noContextMenu()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("text"));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                            form.field->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(form.field, &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(form.findChildren<QWidget*>(QStringLiteral("qt_edit_menu")).isEmpty());
}

void tst_LineEdit::subclassFunctions()
{
    DerivedEdit edit;
    SignalLog log(&edit);
    edit.setText(QStringLiteral("text"));
    QTest::keyClicks(&edit, QStringLiteral("x"));
    QCOMPARE(edit.calls, QStringList{"textEditedSlot(textx)"});

    edit.calls.clear();
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Escape);
    QCOMPARE(edit.calls, QStringList{"textEditedSlot()"});
    QCOMPARE(log.take(),
             (QStringList{"textEdited(textx)", "valueChanged", "editingFinished", "signalOkKey",
                          "textEdited()", "editingFinished", "signalCancelKey"}));
}

const test::Registration<tst_LineEdit> registration;

#include "tst_LineEdit.moc"
