#include "EditForm.h"
#include "KeypadKeys.h"
#include "PlatformMessages.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QPushButton>

using test::EditForm;
using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace {

/// Notes where a widget is whenever it is shown.
class ShowRecorder : public QObject
{
public:
    explicit ShowRecorder(QWidget* widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            positions.append(static_cast<QWidget*>(watched)->pos());
        return false;
    }

    QVector<QPoint> positions;
};

} // namespace

/// What comes before what when the keypad opens and closes.
class tst_KeypadLineEditOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }
    void init();
    void cleanup();

    void placedBeforeItIsShown();
    void shownBeforeTheTextIsSelected();
    void hiddenDuringALoopInASlot_data();
    void hiddenDuringALoopInASlot();
    void cancelledBeforeItIsHidden();
    void twoFieldsAtOnce();

private:
    bool openKeypad();

    QScopedPointer<EditForm<KeypadLineEdit>> m_form;
    KeypadLineEdit* m_field = nullptr;
};

void tst_KeypadLineEditOrder::init()
{
    m_form.reset(new EditForm<KeypadLineEdit>(KeyboardType::Integer));
    m_field = m_form->field;
    m_field->setText(QStringLiteral("1"));
    QVERIFY(m_form->showActive());
}

void tst_KeypadLineEditOrder::cleanup()
{
    m_form.reset();
}

bool tst_KeypadLineEditOrder::openKeypad()
{
    m_field->setFocus();
    return QTest::qWaitFor([&] { return m_field->keypad()->isVisible(); });
}

void tst_KeypadLineEditOrder::placedBeforeItIsShown()
{
    m_field->setFocus();
    const ShowRecorder recorder(m_field->keypad());
    const QPoint expected = m_field->mapToGlobal(QPoint(0, m_field->height()));
    QTRY_COMPARE(recorder.positions.size(), 1);
    // The offscreen plugin adds the frame of a window to the position of the pop-up.
    QVERIFY((recorder.positions.first() - expected).manhattanLength() <= 4);
}

void tst_KeypadLineEditOrder::shownBeforeTheTextIsSelected()
{
    QString selectedAtStart = QStringLiteral("not started");
    connect(m_field, &KeypadLineEdit::startKeypad, m_form.data(),
            [&] { selectedAtStart = m_field->selectedText(); });
    QVERIFY(openKeypad());
    QCOMPARE(selectedAtStart, QString());
    QTRY_COMPARE(m_field->selectedText(), QStringLiteral("1"));
}

void tst_KeypadLineEditOrder::hiddenDuringALoopInASlot_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("OK") << "OK";
    QTest::newRow("Cancel") << "Cancel";
}

void tst_KeypadLineEditOrder::hiddenDuringALoopInASlot()
{
    QFETCH(QString, key);
    QVERIFY(openKeypad());
    bool hidden = false;
    // As with a message box: the keypad is not to lie over it.
    const auto loop = [&] {
        QCoreApplication::processEvents();
        hidden = !m_field->keypad()->isVisible();
    };
    connect(m_field, &ui::LineEdit::valueChanged, m_form.data(), loop);
    connect(m_field, &ui::LineEdit::resultValidated, m_form.data(), loop);
    test::tapKey(*m_field->keypad(), key);
    QVERIFY(hidden);
}

void tst_KeypadLineEditOrder::cancelledBeforeItIsHidden()
{
    QVERIFY(openKeypad());
    bool visible = false;
    connect(m_field, &ui::LineEdit::signalCancelKey, m_form.data(), [&] {
        QCoreApplication::processEvents();
        visible = m_field->keypad()->isVisible();
    });
    m_form->other->setFocus();
    QVERIFY(visible);
    QTRY_VERIFY(!m_field->keypad()->isVisible());
}

/// The showing asks neither for the focus nor for other keypads: taps close one after the other.
void tst_KeypadLineEditOrder::twoFieldsAtOnce()
{
    m_form->resize(900, 700);
    auto* second = new KeypadLineEdit(m_form.data(), KeyboardType::Integer);
    second->setGeometry(500, 20, 200, 30);
    second->show();
    m_field->setFocus(Qt::MouseFocusReason);
    second->setFocus(Qt::MouseFocusReason);
    QTRY_VERIFY(m_field->keypad() && m_field->keypad()->isVisible());
    QTRY_VERIFY(second->keypad() && second->keypad()->isVisible());

    for (int closed = 1; closed <= 2; ++closed) {
        QTest::mouseClick(m_form->windowHandle(), Qt::LeftButton, {}, QPoint(880, 680));
        QTRY_COMPARE(int(m_field->keypad()->isVisible()) + int(second->keypad()->isVisible()),
                     2 - closed);
    }
    QVERIFY(!QApplication::activePopupWidget());
    QTRY_VERIFY(!m_field->hasFocus() && !second->hasFocus());
}

const test::Registration<tst_KeypadLineEditOrder> registration;

#include "tst_KeypadLineEditOrder.moc"
