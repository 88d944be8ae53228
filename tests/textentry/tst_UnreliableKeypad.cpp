#include "EditForm.h"
#include "EventLoop.h"
#include "PlatformMessages.h"

#include <ui/keyboard/IKeypad.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

using test::EditForm;
using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::IKeypad;
using ui::keyboard::KeyboardType;

namespace {

/// A keypad whose keys are pressed by the test.
class TestKeypad : public IKeypad
{
public:
    explicit TestKeypad(QWidget* parent)
        : IKeypad(parent)
    {
    }

    QSize sizeHint() const override
    {
        return m_hint;
    }
    void setSectionVisible(int, bool visible) override
    {
        m_hint = visible ? QSize(100, 100) : QSize(40, 40);
        updateGeometry();
    }
    void allowEntry(bool allowed) override
    {
        results.append(allowed);
        if (diesOfResult)
            delete this;
    }

    QVector<bool> results;
    bool diesOfResult = false;
    bool diesWhenShown = false;

protected:
    void showEvent(QShowEvent*) override
    {
        if (diesWhenShown)
            deleteLater();
    }

private:
    QSize m_hint{100, 100};
};

enum class Kind { None, Ordinary, DiesWhenShown };

Kind& kind()
{
    static Kind instance = Kind::Ordinary;
    return instance;
}

} // namespace

// Takes the place of the keyboard library's: a program's own definitions come first.
IKeypad* IKeypad::create(KeyboardType, QWidget* parent)
{
    if (kind() == Kind::None)
        return nullptr;
    auto* keypad = new TestKeypad(parent);
    keypad->diesWhenShown = kind() == Kind::DiesWhenShown;
    return keypad;
}

class PlainKeypadLineEdit : public KeypadLineEdit
{
    Q_OBJECT

public:
    explicit PlainKeypadLineEdit(QWidget* parent)
        : KeypadLineEdit(parent, KeyboardType::Integer)
    {
    }
};

/// A field whose keypad is missing, dies, or answers when nobody waits for it any more.
class tst_UnreliableKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void none();
    void diesWhenShown();
    void diesOfAResult();
    void diesInItsOwnSignal_data();
    void diesInItsOwnSignal();
    void answersAfterTheEdit_data();
    void answersAfterTheEdit();
    void answersTwice();
    void answersWhileTheFieldIsHidden();

private:
    void edit();
    KeypadLineEdit& field() const
    {
        return *m_form->field;
    }
    TestKeypad* keypad() const;
    void press(bool ok) const;

    std::unique_ptr<EditForm<PlainKeypadLineEdit>> m_form;
};

void tst_UnreliableKeypad::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_UnreliableKeypad::init()
{
    kind() = Kind::Ordinary;
    m_form = std::make_unique<EditForm<PlainKeypadLineEdit>>();
    m_form->field->setText(QStringLiteral("old"));
    QVERIFY(m_form->showActive());
}

void tst_UnreliableKeypad::cleanup()
{
    m_form.reset();
}

/// The user has tapped the field and changed its text.
void tst_UnreliableKeypad::edit()
{
    field().setFocus();
    test::processEvents();
    QVERIFY(field().keypad()->isVisible());
    field().setText(QStringLiteral("new"));
}

TestKeypad* tst_UnreliableKeypad::keypad() const
{
    const QWidget* popup = field().keypad();
    for (QObject* child : popup->findChildren<QWidget*>()) {
        if (auto* found = dynamic_cast<TestKeypad*>(child))
            return found;
    }
    return nullptr;
}

void tst_UnreliableKeypad::press(bool ok) const
{
    ok ? Q_EMIT keypad()->signalOk() : Q_EMIT keypad()->signalCancel();
}

void tst_UnreliableKeypad::none()
{
    kind() = Kind::None;
    edit();
    QVERIFY(!keypad());
    field().keypad()->setKeypadSectionVisible(0, false);
    QTest::keyClicks(field().keypad(), QStringLiteral("x"));
    QCOMPARE(field().text(), QStringLiteral("newx"));
    QTest::keyClick(field().keypad(), Qt::Key_Return);
    QVERIFY(!field().hasFocus());
    test::processEvents();
    QVERIFY(!field().keypad()->isVisible());
    QCOMPARE(field().text(), QStringLiteral("newx"));
}

void tst_UnreliableKeypad::diesWhenShown()
{
    kind() = Kind::DiesWhenShown;
    edit();
    test::processEvents();
    QVERIFY(!keypad());
    QTest::keyClick(field().keypad(), Qt::Key_Escape);
    QCOMPARE(field().text(), QStringLiteral("old"));
    test::processEvents();
    edit();
}

void tst_UnreliableKeypad::diesOfAResult()
{
    edit();
    keypad()->diesOfResult = true;
    QTest::keyClicks(&field(), QStringLiteral("x"));
    QVERIFY(!keypad());
    QCOMPARE(field().property("inputValid"), QVariant(true));
    QTest::keyClicks(&field(), QStringLiteral("y"));
    QCOMPARE(field().text(), QStringLiteral("newxy"));
}

void tst_UnreliableKeypad::diesInItsOwnSignal_data()
{
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("text");
    QTest::newRow("OK") << true << "new";
    QTest::newRow("Cancel") << false << "old";
}

void tst_UnreliableKeypad::diesInItsOwnSignal()
{
    QFETCH(bool, ok);
    QFETCH(QString, text);
    edit();
    connect(&field(), &QLineEdit::editingFinished, keypad(),
            [keypad = keypad()] { delete keypad; });
    press(ok);
    QVERIFY(!keypad());
    QCOMPARE(field().text(), text);
    test::processEvents();
    QVERIFY(!field().keypad()->isVisible());
    field().keypad()->setKeypadSectionVisible(0, false);
}

void tst_UnreliableKeypad::answersAfterTheEdit_data()
{
    diesInItsOwnSignal_data();
}

/// The text of the field is what the late answer finds: it is no longer that of an edit.
void tst_UnreliableKeypad::answersAfterTheEdit()
{
    QFETCH(bool, ok);
    edit();
    QTest::keyClick(&field(), Qt::Key_Return);
    test::processEvents();
    QVERIFY(!field().keypad()->isVisible());
    m_form->other->setFocus();
    QSignalSpy finished(&field(), &QLineEdit::editingFinished);
    press(ok);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(field().text(), ok ? QStringLiteral("new") : QStringLiteral("old"));
    test::processEvents();
    QVERIFY(!field().keypad()->isVisible());
    QVERIFY(m_form->other->hasFocus());
}

void tst_UnreliableKeypad::answersTwice()
{
    edit();
    QSignalSpy changed(&field(), &KeypadLineEdit::valueChanged);
    press(true);
    press(true);
    press(false);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(field().text(), QStringLiteral("old"));
    test::processEvents();
    QVERIFY(!field().keypad()->isVisible());
    edit();
}

void tst_UnreliableKeypad::answersWhileTheFieldIsHidden()
{
    edit();
    m_form->hide();
    press(true);
    test::processEvents();
    QVERIFY(!field().keypad()->isVisible());
    m_form->show();
    test::processEvents();
    QVERIFY(!field().keypad()->isVisible());
    QCOMPARE(field().text(), QStringLiteral("new"));
}

int main(int argc, char** argv)
{
    return test::run<tst_UnreliableKeypad>(argc, argv);
}

#include "tst_UnreliableKeypad.moc"
