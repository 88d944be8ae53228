#include "EditForm.h"
#include "PlatformMessages.h"
#include "SignalLog.h"

#include <ui/LineEdit.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QCompleter>
#include <QInputMethodEvent>
#include <QValidator>

using test::EditForm;
using test::SignalLog;

/// What users of QLineEdit do keeps working.
class tst_LineEditFeatures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void inputMethod();
    void inlineCompletion();
    void popupCompletion();
    void inputMask();
    void readOnly();
    void maxLength();
    void passwordEcho();
    void passwordEchoOnEdit();
    void pasteHugeText();
    void undoAfterCancel();
    void fixup();
};

void tst_LineEditFeatures::inputMethod()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setFocus();
    SignalLog log(form.field);

    QInputMethodEvent preedit(QStringLiteral("pre"), {});
    QCoreApplication::sendEvent(form.field, &preedit);
    QCOMPARE(log.take(), QStringList());
    QInputMethodEvent commit;
    commit.setCommitString(QString(QChar(0x6c34)));
    QCoreApplication::sendEvent(form.field, &commit);
    QCOMPARE(form.field->text(), QString(QChar(0x6c34)));
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)",
                          QStringLiteral("textEdited(%1)").arg(QChar(0x6c34))}));
    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QString());
}

void tst_LineEditFeatures::inlineCompletion()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    auto* completer = new QCompleter({QStringLiteral("alpha"), QStringLiteral("beta")}, form.field);
    completer->setCompletionMode(QCompleter::InlineCompletion);
    form.field->setCompleter(completer);
    form.field->setFocus();

    QTest::keyClicks(form.field, QStringLiteral("al"));
    QCOMPARE(form.field->text(), QStringLiteral("alpha"));
    QTest::keyClick(form.field, Qt::Key_Return);
    QCOMPARE(form.field->text(), QStringLiteral("alpha"));
}

void tst_LineEditFeatures::popupCompletion()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    auto* completer = new QCompleter({QStringLiteral("alpha"), QStringLiteral("beta")}, form.field);
    form.field->setCompleter(completer);
    form.field->setFocus();
    SignalLog log(form.field);

    QTest::keyClicks(form.field, QStringLiteral("al"));
    QTRY_VERIFY(completer->popup()->isVisible());
    QVERIFY(form.field->hasFocus());
    QTest::keyClick(completer->popup(), Qt::Key_Down);
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    QVERIFY(!completer->popup()->isVisible());
    QCOMPARE(form.field->text(), QStringLiteral("alpha"));
    QVERIFY(!log.take().contains(QStringLiteral("signalCancelKey")));
}

void tst_LineEditFeatures::inputMask()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setInputMask(QStringLiteral("99.99;_"));
    form.field->setText(QStringLiteral("12.34"));
    form.field->setFocus();
    form.field->setCursorPosition(0);
    QTest::keyClicks(form.field, QStringLiteral("56"));
    QCOMPARE(form.field->text(), QStringLiteral("56.34"));
    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QStringLiteral("12.34"));
}

void tst_LineEditFeatures::readOnly()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("fixed"));
    form.field->setReadOnly(true);
    form.field->setFocus();
    SignalLog log(form.field);
    QTest::keyClicks(form.field, QStringLiteral("x"));
    QTest::keyClick(form.field, Qt::Key_Backspace);
    QCOMPARE(form.field->text(), QStringLiteral("fixed"));
    QCOMPARE(log.take(), QStringList());
    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QStringLiteral("fixed"));
    QVERIFY(!form.field->hasFocus());
}

void tst_LineEditFeatures::maxLength()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("abcdef"));
    form.field->setFocus();
    form.field->setMaxLength(3);
    form.field->setCursorPosition(0);
    QTest::keyClicks(form.field, QStringLiteral("x"));
    QCOMPARE(form.field->text(), QStringLiteral("abc"));
    SignalLog log(form.field);

    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QStringLiteral("abc"));
    QCOMPARE(log.take().mid(0, 2), (QStringList{"resultValidated(true)", "textEdited(abcdef)"}));
}

void tst_LineEditFeatures::passwordEcho()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setEchoMode(QLineEdit::Password);
    form.field->setText(QStringLiteral("1234"));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("5"));
    QCOMPARE(form.field->displayText().count(QLatin1Char('5')), 0);
    SignalLog log(form.field);
    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(form.field->text(), QStringLiteral("1234"));
    QCOMPARE(log.take().at(1), QStringLiteral("textEdited(1234)"));
}

void tst_LineEditFeatures::passwordEchoOnEdit()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    form.field->setText(QStringLiteral("1234"));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("5"));
    QCOMPARE(form.field->displayText(), QStringLiteral("5"));
    QTest::keyClick(form.field, Qt::Key_Return);
    QCOMPARE(form.field->text(), QStringLiteral("5"));
    QVERIFY(form.field->displayText() != QStringLiteral("5"));
}

void tst_LineEditFeatures::pasteHugeText()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    QApplication::clipboard()->setText(QString(1000000, QLatin1Char('7')) + QLatin1Char('\n'));
    form.field->setValidator(new QDoubleValidator(form.field));
    form.field->setFocus();
    form.field->paste();
    QTest::keyClick(form.field, Qt::Key_Escape);
    form.field->setValidator(nullptr);
    form.field->setFocus();
    form.field->paste();
    QCOMPARE(form.field->text().length(), form.field->maxLength());
    QTest::keyClick(form.field, Qt::Key_Return);
    QCOMPARE(form.field->text().length(), form.field->maxLength());
    QApplication::clipboard()->clear();
}

void tst_LineEditFeatures::undoAfterCancel()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("ab"));
    QVERIFY(form.field->isUndoAvailable());
    form.field->undo();
    QCOMPARE(form.field->text(), QStringLiteral("old"));
    QTest::keyClicks(form.field, QStringLiteral("ab"));
    QTest::keyClick(form.field, Qt::Key_Escape);
    QVERIFY(!form.field->isUndoAvailable());
}

void tst_LineEditFeatures::fixup()
{
    class Fixer : public QValidator
    {
    public:
        using QValidator::QValidator;
        State validate(QString& text, int&) const override
        {
            return text == QLatin1String("fixed") ? Acceptable : Intermediate;
        }
        void fixup(QString& text) const override
        {
            text = QStringLiteral("fixed");
        }
    };

    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setText(QStringLiteral("old"));
    form.field->setValidator(new Fixer(form.field));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("x"));

    // OK takes the text as it stands: QLineEdit repairs it when the focus goes.
    QTest::keyClick(form.field, Qt::Key_Return);
    QCOMPARE(form.field->text(), QStringLiteral("fixed"));
    // What a Cancel has repaired is reverted.
    form.field->setText(QStringLiteral("old"));
    form.field->setFocus();
    form.other->setFocus();
    QCOMPARE(form.field->text(), QStringLiteral("old"));
}

const test::Registration<tst_LineEditFeatures> registration;

#include "tst_LineEditFeatures.moc"
