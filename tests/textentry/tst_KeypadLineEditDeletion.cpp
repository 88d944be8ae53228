#include "EditForm.h"
#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "SignalLog.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QPointer>
#include <QPushButton>
#include <QWindow>

using test::EditForm;
using test::SignalLog;
using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

/// The field and its pop-up deleted at any moment.
class tst_KeypadLineEditDeletion : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void deleteField()
    {
        delete m_field;
    }
    void deleteFieldLater()
    {
        m_field->deleteLater();
    }
    void deletePopup()
    {
        delete m_field->keypad();
    }

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }
    void init();
    void cleanup();

    void withShowPending();
    void withHidePending();
    void withPopupShown();
    void hidesThePopupFirst();
    void formWithPopupShown();
    void inSignal_data();
    void inSignal();
    void inSignalOfAFocusLoss_data();
    void inSignalOfAFocusLoss();
    void laterInATapOutside_data();
    void laterInATapOutside();
    void popupDeletedInSignal_data();
    void popupDeletedInSignal();
    void popupDeletedWithShowPending();
    void popupDeletedWhileShown();

private:
    bool openKeypad();

    QScopedPointer<EditForm<KeypadLineEdit>> m_form;
    QPointer<KeypadLineEdit> m_field;
};

void tst_KeypadLineEditDeletion::init()
{
    m_form.reset(new EditForm<KeypadLineEdit>(KeyboardType::Integer));
    m_form->resize(800, 400);
    m_field = m_form->field;
    QVERIFY(m_form->showActive());
}

void tst_KeypadLineEditDeletion::cleanup()
{
    m_form.reset();
}

bool tst_KeypadLineEditDeletion::openKeypad()
{
    m_field->setFocus();
    return QTest::qWaitFor([&] { return m_field->keypad() && m_field->keypad()->isVisible(); });
}

void tst_KeypadLineEditDeletion::withShowPending()
{
    m_field->setFocus();
    const QPointer<KeypadPopup> popup = m_field->keypad();
    delete m_field;
    QVERIFY(!popup);
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KeypadLineEditDeletion::withHidePending()
{
    QVERIFY(openKeypad());
    m_field->hideKeypad();
    delete m_field;
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KeypadLineEditDeletion::withPopupShown()
{
    QVERIFY(openKeypad());
    QTest::keyClicks(m_field, QStringLiteral("1"));
    SignalLog log(m_field.data());
    connect(m_field, SIGNAL(editingFinished()), this, SLOT(deleteField()));
    delete m_field;
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(!QApplication::focusWidget());
}

void tst_KeypadLineEditDeletion::hidesThePopupFirst()
{
    class HideObserver : public QObject
    {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Hide)
                parentClass = QString::fromLatin1(watched->parent()->metaObject()->className());
            return false;
        }
        QString parentClass;
    };

    QVERIFY(openKeypad());
    HideObserver observer;
    m_field->keypad()->installEventFilter(&observer);
    delete m_field;
    QCOMPARE(observer.parentClass, QStringLiteral("ui::KeypadLineEdit")); // still a whole field
}

void tst_KeypadLineEditDeletion::formWithPopupShown()
{
    QVERIFY(openKeypad());
    m_form.reset();
    QVERIFY(!m_field);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KeypadLineEditDeletion::inSignal_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("expected");
    const QStringList ok{"valueChanged", "editingFinished"};
    const QStringList cancel{"resultValidated(true)", "textEdited()", "editingFinished"};
    QTest::newRow("OK, valueChanged")
        << QByteArray(SIGNAL(valueChanged())) << "OK" << QStringList(ok.mid(0, 1));
    QTest::newRow("OK, editingFinished") << QByteArray(SIGNAL(editingFinished())) << "OK" << ok;
    QTest::newRow("Cancel, resultValidated")
        << QByteArray(SIGNAL(resultValidated(bool))) << "Cancel" << QStringList(cancel.mid(0, 1));
    QTest::newRow("Cancel, textEdited")
        << QByteArray(SIGNAL(textEdited(QString))) << "Cancel" << QStringList(cancel.mid(0, 2));
    QTest::newRow("Cancel, editingFinished")
        << QByteArray(SIGNAL(editingFinished())) << "Cancel" << cancel;
}

void tst_KeypadLineEditDeletion::inSignal()
{
    QFETCH(QByteArray, signal);
    QFETCH(QString, key);
    QFETCH(QStringList, expected);
    QVERIFY(openKeypad());
    SignalLog log(m_field.data());
    connect(m_field, signal.constData(), this, SLOT(deleteField()));

    // By the window system's road: the pop-up's window goes while it handles the release.
    const QPointer<QWindow> window = m_field->keypad()->windowHandle();
    const QWidget* button = test::keypadKey(*m_field->keypad(), key);
    const QPoint position = button->mapTo(m_field->keypad(), button->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, position);
    QTest::mouseRelease(window, Qt::LeftButton, {}, position);
    QVERIFY(!m_field);
    QVERIFY(!window);
    QCOMPARE(log.take(), expected);
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KeypadLineEditDeletion::inSignalOfAFocusLoss_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("resultValidated") << QByteArray(SIGNAL(resultValidated(bool)));
    QTest::newRow("textEdited") << QByteArray(SIGNAL(textEdited(QString)));
    QTest::newRow("editingFinished") << QByteArray(SIGNAL(editingFinished()));
    QTest::newRow("signalCancelKey") << QByteArray(SIGNAL(signalCancelKey()));
}

void tst_KeypadLineEditDeletion::inSignalOfAFocusLoss()
{
    QFETCH(QByteArray, signal);
    m_field->setInputMask(QStringLiteral("9")); // QLineEdit emits no editingFinished() of its own
    QVERIFY(openKeypad());
    connect(m_field, signal.constData(), this, SLOT(deleteField()));
    m_form->other->setFocus();
    QVERIFY(!m_field);
    QVERIFY(m_form->other->hasFocus());
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KeypadLineEditDeletion::laterInATapOutside_data()
{
    inSignalOfAFocusLoss_data();
}

void tst_KeypadLineEditDeletion::laterInATapOutside()
{
    QFETCH(QByteArray, signal);
    QVERIFY(openKeypad());
    connect(m_field, signal.constData(), this, SLOT(deleteFieldLater()));
    QTest::mouseClick(m_form->windowHandle(), Qt::LeftButton, {}, QPoint(780, 380));
    QTRY_VERIFY(!m_field);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_KeypadLineEditDeletion::popupDeletedInSignal_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("OK") << "OK";
    QTest::newRow("Cancel") << "Cancel";
}

void tst_KeypadLineEditDeletion::popupDeletedInSignal()
{
    QFETCH(QString, key);
    QVERIFY(openKeypad());
    connect(m_field->keypad(), SIGNAL(signalOk()), this, SLOT(deletePopup()));
    connect(m_field->keypad(), SIGNAL(signalCancel()), this, SLOT(deletePopup()));
    test::keypadKey(*m_field->keypad(), key)->click();
    QVERIFY(!m_field->keypad());
    QCoreApplication::processEvents(); // the hide that is pending
    QVERIFY(openKeypad()); // by a new pop-up
    QVERIFY(m_field->keypad()->isVisible());
}

void tst_KeypadLineEditDeletion::popupDeletedWithShowPending()
{
    m_field->setFocus();
    delete m_field->keypad();
    QCoreApplication::processEvents();
    QVERIFY(!m_field->keypad());
    m_field->hideKeypad();
}

void tst_KeypadLineEditDeletion::popupDeletedWhileShown()
{
    QVERIFY(openKeypad());
    delete m_field->keypad();
    QVERIFY(!m_field->keypad());
    QCoreApplication::processEvents();
    QVERIFY(openKeypad());
}

const test::Registration<tst_KeypadLineEditDeletion> registration;

#include "tst_KeypadLineEditDeletion.moc"
