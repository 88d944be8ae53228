#include "EditForm.h"
#include "PlatformMessages.h"
#include "SignalLog.h"

#include <ui/LineEdit.h>

#include <QPointer>

using test::EditForm;
using test::SignalLog;

namespace {

void sendKey(QWidget* widget, Qt::Key key)
{
    // Not by QTest::keyClick(), which uses the widget once more after the press.
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

/// The field deleted in a slot of its own signals: the rest of the sequence is dropped.
class tst_LineEditDeletion : public QObject
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

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void inOk_data();
    void inOk();
    void inCancel_data();
    void inCancel();
    void inCancelByFocusLoss_data();
    void inCancelByFocusLoss();
    void deletedLater_data();
    void deletedLater();
    void withItsForm();
    void focusedAgainByASlot();

private:
    QPointer<ui::LineEdit> m_field;
};

void tst_LineEditDeletion::inOk_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QStringList>("expected");
    const QStringList all{"valueChanged", "editingFinished", "signalOkKey"};
    QTest::newRow("valueChanged") << QByteArray(SIGNAL(valueChanged()))
                                  << QStringList(all.mid(0, 1));
    QTest::newRow("editingFinished")
        << QByteArray(SIGNAL(editingFinished())) << QStringList(all.mid(0, 2));
    QTest::newRow("signalOkKey") << QByteArray(SIGNAL(signalOkKey())) << all;
}

void tst_LineEditDeletion::inOk()
{
    QFETCH(QByteArray, signal);
    QFETCH(QStringList, expected);
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    m_field = form.field;
    m_field->setFocus();
    SignalLog log(m_field.data());
    connect(m_field, signal.constData(), this, SLOT(deleteField()));

    sendKey(m_field, Qt::Key_Return);
    QVERIFY(!m_field);
    QCOMPARE(log.take(), expected);
}

void tst_LineEditDeletion::inCancel_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QStringList>("expected");
    const QStringList all{"resultValidated(true)", "textEdited()", "editingFinished",
                          "signalCancelKey"};
    QTest::newRow("resultValidated")
        << QByteArray(SIGNAL(resultValidated(bool))) << QStringList(all.mid(0, 1));
    QTest::newRow("textEdited") << QByteArray(SIGNAL(textEdited(QString)))
                                << QStringList(all.mid(0, 2));
    QTest::newRow("editingFinished")
        << QByteArray(SIGNAL(editingFinished())) << QStringList(all.mid(0, 3));
    QTest::newRow("signalCancelKey") << QByteArray(SIGNAL(signalCancelKey())) << all;
}

void tst_LineEditDeletion::inCancel()
{
    QFETCH(QByteArray, signal);
    QFETCH(QStringList, expected);
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    m_field = form.field;
    m_field->setFocus();
    SignalLog log(m_field.data());
    connect(m_field, signal.constData(), this, SLOT(deleteField()));

    sendKey(m_field, Qt::Key_Escape);
    QVERIFY(!m_field);
    QCOMPARE(log.take(), expected);
}

void tst_LineEditDeletion::inCancelByFocusLoss_data()
{
    inCancel_data();
}

void tst_LineEditDeletion::inCancelByFocusLoss()
{
    QFETCH(QByteArray, signal);
    QFETCH(QStringList, expected);
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    m_field = form.field;
    // Not acceptable, so that QLineEdit emits no editingFinished() of its own before the Cancel.
    m_field->setInputMask(QStringLiteral("9"));
    m_field->setFocus();
    SignalLog log(m_field.data());
    connect(m_field, signal.constData(), this, SLOT(deleteField()));

    form.other->setFocus();
    QVERIFY(!m_field);
    QCOMPARE(log.take(), expected);
    QVERIFY(form.other->hasFocus());
}

void tst_LineEditDeletion::deletedLater_data()
{
    QTest::addColumn<QByteArray>("signal");
    for (const char* signal :
         {SIGNAL(textEdited(QString)), SIGNAL(textChanged(QString)), SIGNAL(resultValidated(bool)),
          SIGNAL(selectionChanged()), SIGNAL(cursorPositionChanged(int, int)),
          SIGNAL(editingFinished()), SIGNAL(signalCancelKey())}) {
        QTest::newRow(signal) << QByteArray(signal);
    }
}

void tst_LineEditDeletion::deletedLater()
{
    QFETCH(QByteArray, signal);
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    m_field = form.field;
    m_field->setText(QStringLiteral("text"));
    m_field->setFocus();
    connect(m_field, signal.constData(), this, SLOT(deleteFieldLater()));

    m_field->selectAll();
    QTest::keyClicks(m_field, QStringLiteral("x"));
    form.other->setFocus();
    QTRY_VERIFY(!m_field);
}

void tst_LineEditDeletion::withItsForm()
{
    auto* form = new EditForm<ui::LineEdit>;
    QVERIFY(form->showActive());
    m_field = form->field;
    m_field->setFocus();
    delete form;
    QVERIFY(!m_field);
}

void tst_LineEditDeletion::focusedAgainByASlot()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    m_field = form.field;
    m_field->setText(QStringLiteral("old"));
    m_field->setFocus();
    m_field->setText(QStringLiteral("new"));
    SignalLog log(m_field.data());
    connect(m_field, &ui::LineEdit::resultValidated, form.other, [&] {
        m_field->blockSignals(true);
        form.other->setFocus();
        m_field->setText(QStringLiteral("from the slot"));
        m_field->setFocus();
        m_field->blockSignals(false);
    });

    sendKey(m_field, Qt::Key_Escape);
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited(old)", "editingFinished",
                          "signalCancelKey"}));
}

const test::Registration<tst_LineEditDeletion> registration;

#include "tst_LineEditDeletion.moc"
