#include "EditForm.h"
#include "KeypadKeys.h"
#include "SignalLog.h"
#include "XPointer.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QValidator>

using test::EditForm;
using test::SignalLog;
using test::XPointer;
using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace {

/// A form that covers the screen, with two fields and much empty space.
class TapForm : public EditForm<KeypadLineEdit>
{
public:
    TapForm()
        : EditForm(KeyboardType::Integer)
        , second(new KeypadLineEdit(this, KeyboardType::Decimal))
    {
        field->setText(QStringLiteral("15"));
        field->setValidator(new QIntValidator(10, 99, field));
        second->setGeometry(500, 20, 200, 30);
        second->setText(QStringLiteral("2"));
        setGeometry(QGuiApplication::primaryScreen()->geometry());
        setWindowFlags(Qt::FramelessWindowHint);
    }

    QPoint emptySpot() const
    {
        return mapToGlobal(QPoint(width() - 20, height() - 20));
    }

    KeypadLineEdit* const second;
};

bool isShown(const KeypadLineEdit* field)
{
    return field->keypad() && field->keypad()->isVisible();
}

bool waitUntilShown(const KeypadLineEdit* field)
{
    return QTest::qWaitFor([=] { return isShown(field); })
        && QTest::qWaitForWindowExposed(field->keypad());
}

bool waitUntilHidden(const KeypadLineEdit* field)
{
    return QTest::qWaitFor([=] { return !isShown(field); });
}

/// Taps a key of the field's keypad and waits until the keypad has it back.
bool tapKey(const KeypadLineEdit* field, const char* name)
{
    const QPushButton* key = test::keypadKey(*field->keypad(), QString::fromUtf8(name));
    return key && XPointer::tap(*key) && QTest::qWaitFor([=] { return !key->isDown(); });
}

/// Taps \a next while the keypad of \a open is up. The tap that closes a pop-up does not reach what
/// is under it: Qt gives the press to nobody, or without the focus. So the second one counts.
bool tapBeside(const KeypadLineEdit* open, const KeypadLineEdit* next)
{
    return XPointer::tap(*next) && waitUntilHidden(open) && XPointer::tap(*next);
}

} // namespace

/// The road of a tap, with pointer and keys from outside the process, a window manager and a real
/// screen.
class tst_KeypadTaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tapOpensTheKeypad();
    void ok();
    void cancel();
    void tapOutside();
    void tapOnAPlainField();
    void hardwareKeys_data();
    void hardwareKeys();
    void twoFields();
    void backAndForth();
    void tapOnTheFieldAgain();
    void slowTap_data();
    void slowTap();
    void longBackspace();
    void deletedByOk();
    void deletedWithOpenKeypad();

private:
    QScopedPointer<TapForm> m_form;
};

void tst_KeypadTaps::init()
{
    m_form.reset(new TapForm);
    QVERIFY(m_form->showActive());
    QVERIFY(XPointer::move(m_form->emptySpot()));
}

void tst_KeypadTaps::cleanup()
{
    m_form.reset();
}

void tst_KeypadTaps::tapOpensTheKeypad()
{
    KeypadLineEdit* field = m_form->field;
    SignalLog log(field);
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QCOMPARE(field->keypad()->geometry(),
             QRect(field->mapToGlobal(QPoint(0, field->height())), field->keypad()->sizeHint()));
    QVERIFY(field->hasFocus());
    QTRY_COMPARE(field->selectedText(), QStringLiteral("15"));
    QCOMPARE(log.take(), QStringList{"startKeypad"});
}

void tst_KeypadTaps::ok()
{
    KeypadLineEdit* field = m_form->field;
    SignalLog log(field);
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    const QPushButton* okKey = test::keypadKey(*field->keypad(), QStringLiteral("OK"));

    QVERIFY(tapKey(field, "4"));
    QTRY_COMPARE(field->text(), QStringLiteral("4"));
    QTRY_VERIFY(!okKey->isEnabled());
    QCOMPARE(field->property("inputValid"), QVariant(false));
    QVERIFY(tapKey(field, "OK")); // refused
    QVERIFY(tapKey(field, "2"));
    QTRY_COMPARE(field->text(), QStringLiteral("42"));
    QVERIFY(okKey->isEnabled());
    QVERIFY(isShown(field));

    QVERIFY(tapKey(field, "OK"));
    QVERIFY(waitUntilHidden(field));
    QVERIFY(!field->hasFocus());
    QCOMPARE(field->text(), QStringLiteral("42"));
    QCOMPARE(log.take(),
             (QStringList{"startKeypad", "resultValidated(false)", "textEdited(4)",
                          "resultValidated(true)", "textEdited(42)", "valueChanged",
                          "editingFinished"}));
}

void tst_KeypadTaps::cancel()
{
    KeypadLineEdit* field = m_form->field;
    SignalLog log(field);
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QVERIFY(tapKey(field, "4"));
    QTRY_COMPARE(field->text(), QStringLiteral("4"));
    QVERIFY(tapKey(field, "Cancel"));
    QVERIFY(waitUntilHidden(field));
    QVERIFY(!field->hasFocus());
    QCOMPARE(field->text(), QStringLiteral("15"));
    QCOMPARE(log.take(),
             (QStringList{"startKeypad", "resultValidated(false)", "textEdited(4)",
                          "resultValidated(true)", "textEdited(15)", "editingFinished"}));
}

void tst_KeypadTaps::tapOutside()
{
    KeypadLineEdit* field = m_form->field;
    SignalLog log(field);
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QVERIFY(tapKey(field, "4"));
    QTRY_COMPARE(field->text(), QStringLiteral("4"));
    QVERIFY(XPointer::tap(m_form->emptySpot()));
    QVERIFY(waitUntilHidden(field));
    QTRY_VERIFY(!field->hasFocus());
    QCOMPARE(field->text(), QStringLiteral("15"));
    // "4" is not acceptable, so that QLineEdit adds no editingFinished() of its own.
    QCOMPARE(log.take(),
             (QStringList{"startKeypad", "resultValidated(false)", "textEdited(4)",
                          "resultValidated(true)", "textEdited(15)", "editingFinished",
                          "signalCancelKey"}));
}

void tst_KeypadTaps::tapOnAPlainField()
{
    KeypadLineEdit* field = m_form->field;
    m_form->other->move(500, 300);
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QVERIFY(tapKey(field, "4"));
    QVERIFY(XPointer::tap(*m_form->other));
    QVERIFY(waitUntilHidden(field));
    QVERIFY(XPointer::tap(*m_form->other));
    QTRY_VERIFY(m_form->other->hasFocus());
    QCOMPARE(field->text(), QStringLiteral("15"));
}

void tst_KeypadTaps::hardwareKeys_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const QStringList ok{"valueChanged", "editingFinished", "signalOkKey"};
    QTest::newRow("Return") << QByteArray("Return") << "4" << ok;
    QTest::newRow("Enter") << QByteArray("KP_Enter") << "4" << ok;
    QTest::newRow("Escape") << QByteArray("Escape") << "15"
                            << QStringList{"resultValidated(true)", "textEdited(15)",
                                           "editingFinished", "signalCancelKey"};
}

void tst_KeypadTaps::hardwareKeys()
{
    QFETCH(QByteArray, key);
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    KeypadLineEdit* field = m_form->field;
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QTRY_COMPARE(field->selectedText(), QStringLiteral("15"));
    QVERIFY(XPointer::key("4"));
    QTRY_COMPARE(field->text(), QStringLiteral("4"));
    SignalLog log(field);

    QVERIFY(XPointer::key(key.constData()));
    QVERIFY(waitUntilHidden(field));
    QCOMPARE(field->text(), text);
    QVERIFY(!field->hasFocus());
    QCOMPARE(log.take(), expected);
}

void tst_KeypadTaps::twoFields()
{
    KeypadLineEdit* first = m_form->field;
    KeypadLineEdit* second = m_form->second;
    SignalLog firstLog(first);
    SignalLog secondLog(second);
    QVERIFY(XPointer::tap(*first));
    QVERIFY(waitUntilShown(first));
    QVERIFY(tapKey(first, "4"));
    QTRY_COMPARE(first->text(), QStringLiteral("4"));

    QVERIFY(tapBeside(first, second));
    QVERIFY(waitUntilShown(second));
    QVERIFY(!isShown(first));
    QCOMPARE(first->text(), QStringLiteral("15"));
    QVERIFY(second->hasFocus());
    QVERIFY(tapKey(second, "7"));
    QTRY_COMPARE(second->text(), QStringLiteral("7"));
    QVERIFY(tapKey(second, "OK"));
    QVERIFY(waitUntilHidden(second));
    QCOMPARE(firstLog.take(),
             (QStringList{"startKeypad", "resultValidated(false)", "textEdited(4)",
                          "resultValidated(true)", "textEdited(15)", "editingFinished",
                          "signalCancelKey"}));
    QCOMPARE(secondLog.take(),
             (QStringList{"startKeypad", "resultValidated(true)", "textEdited(7)", "valueChanged",
                          "editingFinished"}));
}

void tst_KeypadTaps::backAndForth()
{
    KeypadLineEdit* first = m_form->field;
    KeypadLineEdit* second = m_form->second;
    for (int i = 0; i < 2; ++i) {
        QVERIFY(i == 0 ? XPointer::tap(*first) : tapBeside(second, first));
        QVERIFY(waitUntilShown(first));
        QVERIFY(first->hasFocus());
        QVERIFY(tapBeside(first, second));
        QVERIFY(waitUntilShown(second));
        QVERIFY(second->hasFocus());
        QVERIFY(!isShown(first));
    }
    QCOMPARE(first->text(), QStringLiteral("15"));
    QCOMPARE(second->text(), QStringLiteral("2"));
}

void tst_KeypadTaps::tapOnTheFieldAgain()
{
    KeypadLineEdit* field = m_form->field;
    field->setValidator(nullptr);
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QTRY_VERIFY(field->hasSelectedText());
    SignalLog log(field);
    QVERIFY(XPointer::tap(field->mapToGlobal(QPoint(3, 15))));
    QTRY_COMPARE(field->cursorPosition(), 0);
    QVERIFY(!field->hasSelectedText());
    QVERIFY(tapKey(field, "9"));
    QTRY_COMPARE(field->text(), QStringLiteral("915"));
    QVERIFY(isShown(field));
    QCOMPARE(log.take(), (QStringList{"resultValidated(true)", "textEdited(915)"}));
}

void tst_KeypadTaps::slowTap_data()
{
    QTest::addColumn<QString>("releasedOver");
    QTest::newRow("the field") << "";
    QTest::newRow("a key") << "5";
    QTest::newRow("OK") << "OK";
    QTest::newRow("Cancel") << "Cancel";
}

void tst_KeypadTaps::slowTap()
{
    QFETCH(QString, releasedOver);
    KeypadLineEdit* field = m_form->field;
    SignalLog log(field);
    QVERIFY(XPointer::press(field->mapToGlobal(field->rect().center())));
    QVERIFY(waitUntilShown(field));
    if (!releasedOver.isEmpty()) {
        const QWidget* key = test::keypadKey(*field->keypad(), releasedOver);
        QVERIFY(XPointer::move(key->mapToGlobal(key->rect().center())));
    }
    QVERIFY(XPointer::release());
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::NoButton);
    QVERIFY(isShown(field));
    QCOMPARE(field->text(), QStringLiteral("15"));
    QCOMPARE(log.take(), QStringList{"startKeypad"});
    QVERIFY(tapKey(field, "5")); // and the keypad works
    QTRY_VERIFY(field->text().contains(QLatin1Char('5')));
}

void tst_KeypadTaps::longBackspace()
{
    KeypadLineEdit* field = m_form->field;
    field->setValidator(nullptr);
    field->setText(QStringLiteral("12345"));
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QTRY_VERIFY(field->hasSelectedText());
    field->deselect();
    const QWidget* key = test::keypadKey(*field->keypad(), QStringLiteral("Backspace"));
    QVERIFY(XPointer::press(key->mapToGlobal(key->rect().center())));
    QTRY_COMPARE(field->text(), QString());
    QVERIFY(XPointer::release());
}

void tst_KeypadTaps::deletedByOk()
{
    const QPointer<KeypadLineEdit> field = m_form->field;
    connect(field, &ui::LineEdit::valueChanged, m_form.data(), [=] { delete field; });
    QVERIFY(XPointer::tap(*field));
    QVERIFY(waitUntilShown(field));
    QVERIFY(XPointer::tap(*test::keypadKey(*field->keypad(), QStringLiteral("OK"))));
    QTRY_VERIFY(!field);
    // No grab is left behind.
    QVERIFY(XPointer::tap(*m_form->second));
    QVERIFY(waitUntilShown(m_form->second));
}

void tst_KeypadTaps::deletedWithOpenKeypad()
{
    QVERIFY(XPointer::tap(*m_form->field));
    QVERIFY(waitUntilShown(m_form->field));
    delete m_form->field;
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(XPointer::tap(*m_form->second));
    QVERIFY(waitUntilShown(m_form->second));
}

const test::Registration<tst_KeypadTaps> registration;

#include "tst_KeypadTaps.moc"
