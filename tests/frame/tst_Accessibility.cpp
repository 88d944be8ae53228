#include "TestApplication.h"

#include <ui/LineEdit.h>

#include <QAccessible>
#include <QRegularExpressionValidator>

namespace {

QAccessibleInterface* interfaceOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QString descriptionOf(QWidget& widget)
{
    return interfaceOf(&widget)->text(QAccessible::Description);
}

/// A field for digits only.
class NumberEdit : public ui::LineEdit
{
public:
    NumberEdit()
    {
        setValidator(&m_validator);
    }

    /// As after an edit by the user.
    using LineEdit::textEditedSlot;

private:
    QRegularExpressionValidator m_validator{QRegularExpression(QStringLiteral("[0-9]+"))};
};

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldSaysThatItsInputIsInvalid();
    void invalidFieldKeepsItsDescription_data();
    void invalidFieldKeepsItsDescription();
    void invalidFieldTakesTheApplicationsWords();
    void fieldIsALineEdit();
};

void tst_Accessibility::fieldSaysThatItsInputIsInvalid()
{
    NumberEdit field;
    QCOMPARE(descriptionOf(field), QString());
    for (int round = 0; round < 2; ++round) {
        field.textEditedSlot(QStringLiteral("x"));
        QCOMPARE(descriptionOf(field), QStringLiteral("Invalid input"));
        field.textEditedSlot(QStringLiteral("y"));
        QCOMPARE(descriptionOf(field), QStringLiteral("Invalid input"));
        field.textEditedSlot(QStringLiteral("1"));
        QCOMPARE(descriptionOf(field), QString());
    }
}

void tst_Accessibility::invalidFieldKeepsItsDescription_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::newRow("description") << QByteArray("accessibleDescription");
    QTest::newRow("tool tip") << QByteArray("toolTip");
    QTest::newRow("placeholder") << QByteArray("placeholderText");
}

void tst_Accessibility::invalidFieldKeepsItsDescription()
{
    QFETCH(QByteArray, property);
    const QString words = QStringLiteral("1 to 9");
    NumberEdit field;
    field.setProperty(property.constData(), words);
    const QString given = field.accessibleDescription();

    field.textEditedSlot(QStringLiteral("x"));
    QCOMPARE(descriptionOf(field), QStringLiteral("Invalid input. 1 to 9"));
    field.textEditedSlot(QStringLiteral("1"));
    QCOMPARE(descriptionOf(field), words);
    QCOMPARE(field.accessibleDescription(), given);
}

void tst_Accessibility::invalidFieldTakesTheApplicationsWords()
{
    NumberEdit field;
    field.textEditedSlot(QStringLiteral("x"));
    field.setAccessibleDescription(QStringLiteral("Try a digit"));
    QCOMPARE(descriptionOf(field), QStringLiteral("Try a digit"));
    field.textEditedSlot(QStringLiteral("1"));
    QCOMPARE(descriptionOf(field), QStringLiteral("Try a digit"));

    field.setAccessibleDescription(QStringLiteral("Invalid input"));
    field.textEditedSlot(QStringLiteral("2"));
    QCOMPARE(descriptionOf(field), QStringLiteral("Invalid input"));
}

/// What a screen reader finds in Qt's own line edits it finds in these, even if they are invalid.
void tst_Accessibility::fieldIsALineEdit()
{
    QLineEdit plain;
    NumberEdit field;
    field.textEditedSlot(QStringLiteral("x"));
    for (QLineEdit* edit : {&plain, static_cast<QLineEdit*>(&field)}) {
        edit->setText(QStringLiteral("a secret"));
        edit->setSelection(2, 3);
        edit->resize(200, 40);
    }
    QAccessibleInterface* interface = interfaceOf(&field);
    QCOMPARE(interface->role(), QAccessible::EditableText);
    QVERIFY(!interface->state().invalid); // which would say that there is no field any more
    QVERIFY(interface->editableTextInterface());

    QAccessibleTextInterface* text = interface->textInterface();
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    QCOMPARE(start, 2);
    QCOMPARE(end, 5);
    const QRect character = text->characterRect(3);
    QVERIFY(!character.isEmpty());
    QCOMPARE(character, interfaceOf(&plain)->textInterface()->characterRect(3));

    field.setEchoMode(QLineEdit::Password);
    QVERIFY(interface->state().passwordEdit);
    QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("********"));
}

int main(int argc, char** argv)
{
    return test::run<tst_Accessibility>(argc, argv);
}

#include "tst_Accessibility.moc"
