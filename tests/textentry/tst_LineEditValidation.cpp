#include "EditForm.h"
#include "Painting.h"
#include "PlatformMessages.h"
#include "SignalLog.h"

#include <ui/LineEdit.h>

#include <QProxyStyle>
#include <QStyleFactory>
#include <QValidator>

using test::EditForm;
using test::SignalLog;

namespace {

/// Calls every text of the state that it is named after, and notes what it was asked.
class WordValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int& position) const override
    {
        asked.append(QStringLiteral("%1@%2").arg(text).arg(position));
        const QString word = text;
        text = QStringLiteral("changed by the validator");
        position = 1000;
        if (word.startsWith(QLatin1String("inv")))
            return Invalid;
        return word.startsWith(QLatin1String("int")) ? Intermediate : Acceptable;
    }

    mutable QStringList asked;
};

/// Counts how often it polishes and unpolishes widgets.
class CountingStyle : public QProxyStyle
{
public:
    CountingStyle()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
    {
    }

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override
    {
        calls.append(QStringLiteral("polish %1").arg(widget->property("inputValid").toString()));
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget* widget) override
    {
        calls.append(QStringLiteral("unpolish"));
        QProxyStyle::unpolish(widget);
    }

    QStringList calls;
};

/// Opens the slot to tests: what QLineEdit accepts from a keyboard is filtered by the validator.
class OpenEdit : public ui::LineEdit
{
public:
    using LineEdit::LineEdit;
    using LineEdit::textEditedSlot;
};

QColor cornerColor(QWidget& widget)
{
    return QColor(test::paintedBy(widget).pixel(4, widget.height() / 2));
}

} // namespace

/// The result of the validation: when it is made, what it is and where it goes.
class tst_LineEditValidation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void result_data();
    void result();
    void validatorGetsACopyAndPositionZero();
    void withoutValidator();
    void everyEditIsValidated();
    void cancelValidatesTheRestoredText();
    void setTextIsNotValidated();
    void resultOutlivesTheFocus();
    void deletedValidator();
    void polishesWithTheNewValidity();
    void styleSheetFollows_data();
    void styleSheetFollows();
};

void tst_LineEditValidation::result_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("acceptable") << "fine" << true;
    QTest::newRow("intermediate") << "intermediate" << false;
    QTest::newRow("invalid") << "invalid" << false;
}

void tst_LineEditValidation::result()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    OpenEdit edit;
    edit.setValidator(new WordValidator(&edit));
    edit.setProperty("inputValid", !valid);
    SignalLog log(&edit);

    edit.textEditedSlot(text);
    QCOMPARE(edit.property("inputValid"), QVariant(valid));
    QCOMPARE(log.take(),
             QStringList{QStringLiteral("resultValidated(%1)").arg(QVariant(valid).toString())});
}

void tst_LineEditValidation::validatorGetsACopyAndPositionZero()
{
    OpenEdit edit;
    edit.setText(QStringLiteral("text of the field"));
    auto* validator = new WordValidator(&edit);
    edit.setValidator(validator);
    validator->asked.clear();
    const QString text = QStringLiteral("text of the signal");

    edit.textEditedSlot(text);
    QCOMPARE(validator->asked, QStringList{"text of the signal@0"});
    QCOMPARE(text, QStringLiteral("text of the signal"));
    QCOMPARE(edit.text(), QStringLiteral("text of the field"));
}

void tst_LineEditValidation::withoutValidator()
{
    ui::LineEdit edit;
    edit.setProperty("inputValid", false);
    SignalLog log(&edit);
    QTest::keyClicks(&edit, QStringLiteral("ab"));
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(true)", "textEdited(a)", "resultValidated(true)",
                          "textEdited(ab)"}));
    QCOMPARE(edit.property("inputValid"), QVariant(true));
}

void tst_LineEditValidation::everyEditIsValidated()
{
    ui::LineEdit edit;
    edit.setValidator(new QIntValidator(10, 99, &edit));
    SignalLog log(&edit);
    QTest::keyClicks(&edit, QStringLiteral("12"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(false)", "textEdited(1)", "resultValidated(true)",
                          "textEdited(12)", "resultValidated(false)", "textEdited(1)",
                          "resultValidated(false)", "textEdited()"}));
}

void tst_LineEditValidation::cancelValidatesTheRestoredText()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setValidator(new QIntValidator(10, 99, form.field));
    form.field->setText(QStringLiteral("5")); // not acceptable, but what the application set
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("7"));
    QCOMPARE(form.field->property("inputValid"), QVariant(true));
    SignalLog log(form.field);

    QTest::keyClick(form.field, Qt::Key_Escape);
    QCOMPARE(log.take(),
             (QStringList{"resultValidated(false)", "textEdited(5)", "editingFinished",
                          "signalCancelKey"}));
    QCOMPARE(form.field->property("inputValid"), QVariant(false));
}

void tst_LineEditValidation::setTextIsNotValidated()
{
    ui::LineEdit edit;
    edit.setValidator(new QIntValidator(10, 99, &edit));
    SignalLog log(&edit);
    edit.setText(QStringLiteral("5"));
    QCOMPARE(edit.property("inputValid"), QVariant(true));
    edit.clear();
    edit.setValidator(nullptr);
    QCOMPARE(log.take(), QStringList());
}

void tst_LineEditValidation::resultOutlivesTheFocus()
{
    EditForm<ui::LineEdit> form;
    QVERIFY(form.showActive());
    form.field->setValidator(new QIntValidator(10, 99, form.field));
    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("1"));
    QTest::keyClick(form.field, Qt::Key_Return);
    QCOMPARE(form.field->property("inputValid"), QVariant(false));
    form.field->setFocus();
    QCOMPARE(form.field->property("inputValid"), QVariant(false));
}

void tst_LineEditValidation::deletedValidator()
{
    ui::LineEdit edit;
    auto* validator = new QIntValidator(10, 99, nullptr);
    edit.setValidator(validator);
    QTest::keyClicks(&edit, QStringLiteral("1"));
    QCOMPARE(edit.property("inputValid"), QVariant(false));
    delete validator;
    QTest::keyClicks(&edit, QStringLiteral("x"));
    QCOMPARE(edit.text(), QStringLiteral("1x"));
    QCOMPARE(edit.property("inputValid"), QVariant(true));
}

void tst_LineEditValidation::polishesWithTheNewValidity()
{
    CountingStyle style;
    OpenEdit edit;
    edit.setStyle(&style);
    edit.setValidator(new WordValidator(&edit));
    edit.ensurePolished();
    style.calls.clear();
    QStringList polishedAtSignal;
    connect(&edit, &ui::LineEdit::resultValidated, &edit, [&] { polishedAtSignal = style.calls; });

    edit.textEditedSlot(QStringLiteral("invalid"));
    QCOMPARE(polishedAtSignal, QStringList{"polish false"});
    edit.textEditedSlot(QStringLiteral("invalid"));
    edit.textEditedSlot(QStringLiteral("fine"));
    QCOMPARE(style.calls, (QStringList{"polish false", "polish false", "polish true"}));
    edit.setStyle(nullptr);
}

void tst_LineEditValidation::styleSheetFollows_data()
{
    QTest::addColumn<QString>("selector");
    QTest::newRow("class of the library") << "ui--LineEdit";
    QTest::newRow("class of Qt") << "QLineEdit";
}

void tst_LineEditValidation::styleSheetFollows()
{
    QFETCH(QString, selector);
    QWidget form;
    form.setStyleSheet(QStringLiteral("%1 { background: #00ff00; border: none; }"
                                      "%1[inputValid=\"false\"] { background: #ff0000; }")
                           .arg(selector));
    auto* edit = new ui::LineEdit(&form);
    edit->setValidator(new QIntValidator(10, 99, edit));
    edit->setTextMargins(20, 0, 0, 0);
    edit->resize(100, 30);
    form.show();

    QCOMPARE(cornerColor(*edit), QColor(0, 255, 0));
    QTest::keyClicks(edit, QStringLiteral("1"));
    QCOMPARE(cornerColor(*edit), QColor(255, 0, 0));
    QTest::keyClicks(edit, QStringLiteral("1"));
    QCOMPARE(cornerColor(*edit), QColor(0, 255, 0));
}

const test::Registration<tst_LineEditValidation> registration;

#include "tst_LineEditValidation.moc"
