#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "Samples.h"
#include "TestApplication.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QMessageBox>
#include <QPushButton>
#include <QWindow>

using ui::KeypadLineEdit;

namespace {

bool isUp(const KeypadLineEdit* field)
{
    return field->keypad() && field->keypad()->isVisible();
}

/// Whether the field is being edited: its keypad is up, and no other one.
bool isEdited(const KeypadLineEdit* field)
{
    return isUp(field) && QApplication::activePopupWidget() == field->keypad()
        && QApplication::focusWidget() == field;
}

/// Where keys from the window system go while the keypad of \a field is up.
QWindow* keyboardOf(const KeypadLineEdit* field)
{
    return field->keypad()->windowHandle();
}

} // namespace

/// The way that the reference shows from field to field, and on to a question.
class tst_MovingOn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }
    void init();
    void cleanup();

    void fromFieldToField_data();
    void fromFieldToField();
    void toAQuestion_data();
    void toAQuestion();
    void cancelDoesNotMoveOn();

private:
    void tap(KeypadLineEdit* field);
    void pressOk(KeypadLineEdit* field, bool onKeypad);

    std::unique_ptr<QWidget> m_window;
    KeypadLineEdit* m_host = nullptr;
    KeypadLineEdit* m_port = nullptr;
};

void tst_MovingOn::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setFocusPolicy(Qt::StrongFocus);
    m_window->resize(500, 120);
    samples::movingOn(m_window.get());
    const auto fields = m_window->findChildren<KeypadLineEdit*>();
    QCOMPARE(fields.size(), 2);
    m_host = fields.first();
    m_port = fields.last();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_MovingOn::cleanup()
{
    m_window.reset();
}

void tst_MovingOn::tap(KeypadLineEdit* field)
{
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, field->geometry().center());
    QTRY_VERIFY(isEdited(field));
    QTRY_VERIFY(field->text().isEmpty() || field->hasSelectedText());
}

void tst_MovingOn::pressOk(KeypadLineEdit* field, bool onKeypad)
{
    if (onKeypad)
        test::tapKey(*field->keypad(), QStringLiteral("OK"));
    else
        QTest::keyClick(keyboardOf(field), Qt::Key_Return);
}

void tst_MovingOn::fromFieldToField_data()
{
    QTest::addColumn<bool>("onKeypad");
    QTest::newRow("OK of the keypad") << true;
    QTest::newRow("Return") << false;
}

void tst_MovingOn::fromFieldToField()
{
    QFETCH(bool, onKeypad);
    m_port->setText(QStringLiteral("22"));
    for (const char* const name : {"a", "b"}) {
        tap(m_host);
        QTest::keyClick(keyboardOf(m_host), *name);
        pressOk(m_host, onKeypad);
        QTRY_VERIFY(isEdited(m_port));
        QTRY_COMPARE(m_port->selectedText(), QStringLiteral("22"));
        QVERIFY(!isUp(m_host));
        QCOMPARE(m_host->text(), QString::fromLatin1(name));

        test::tapKey(*m_port->keypad(), QStringLiteral("8"));
        QCOMPARE(m_port->text(), QStringLiteral("8"));
        test::tapKey(*m_port->keypad(), QStringLiteral("Cancel"));
        QTRY_VERIFY(!isUp(m_port));
        QCOMPARE(m_port->text(), QStringLiteral("22"));
    }
}

void tst_MovingOn::toAQuestion_data()
{
    fromFieldToField_data();
}

void tst_MovingOn::toAQuestion()
{
    QFETCH(bool, onKeypad);
    m_host->setText(QStringLiteral("board"));
    tap(m_port);
    QTest::keyClick(keyboardOf(m_port), '8');

    QString question;
    bool isOver = false; // the edit, when the question is asked
    QTimer poll; // runs on in the event loop of the message box
    connect(&poll, &QTimer::timeout, this, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        question = box->text();
        isOver = !isUp(m_port) && !m_port->hasFocus() && !QApplication::activePopupWidget();
        box->button(QMessageBox::Yes)->click();
    });
    poll.start(10);
    pressOk(m_port, onKeypad);
    QTRY_COMPARE(question, QStringLiteral("Connect to board:8?"));
    QVERIFY(isOver);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(m_port->text(), QStringLiteral("8"));
    QVERIFY(!isUp(m_port));
}

void tst_MovingOn::cancelDoesNotMoveOn()
{
    tap(m_host);
    QTest::keyClick(keyboardOf(m_host), Qt::Key_Escape);
    QTRY_VERIFY(!isUp(m_host));
    QCoreApplication::processEvents();
    QVERIFY(!m_port->hasFocus());
    QVERIFY(!isUp(m_port));
}

const test::Registration<tst_MovingOn> registration;

#include "tst_MovingOn.moc"
