#include "TestApplication.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/LineEdit.h>

#include <QAccessible>
#include <QRegularExpressionValidator>
#include <QSignalSpy>

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
    void batteryIsAReadOnlyValue();
    void batteryTellsItsCondition();
    void batteryTakesTheApplicationsWords();
    void crumbIsALink();
    void crumbTakesTheApplicationsWords();
    void crumbIsPressed();
    void crumbDeletedByItsPress();
    void disabledCrumbIsNotPressed();
    void fieldSaysThatItsInputIsInvalid();
    void invalidFieldKeepsItsDescription_data();
    void invalidFieldKeepsItsDescription();
    void invalidFieldTakesTheApplicationsWords();
    void fieldIsALineEdit();
};

void tst_Accessibility::batteryIsAReadOnlyValue()
{
    ui::CBatteryStatusWidget battery;
    QAccessibleInterface* interface = interfaceOf(&battery);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::ProgressBar);
    QVERIFY(interface->state().readOnly);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Battery"));

    QAccessibleValueInterface* value = interface->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 0);
    QCOMPARE(value->maximumValue().toInt(), 100);
    QCOMPARE(value->minimumStepSize().toInt(), 1);
    for (int percent : {57, 150, -5}) {
        battery.setChargePercentage(percent);
        QCOMPARE(value->currentValue().toInt(), qBound(0, percent, 100));
    }
    value->setCurrentValue(33);
    QCOMPARE(value->currentValue().toInt(), 0);
    QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("0%"));
}

void tst_Accessibility::batteryTellsItsCondition()
{
    ui::CBatteryStatusWidget battery;
    const QAccessibleInterface* interface = interfaceOf(&battery);
    QCOMPARE(interface->text(QAccessible::Description), QString());
    battery.setBatteryCharging(true);
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("charging"));
    battery.setBatteryPresent(false);
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("absent"));
}

void tst_Accessibility::batteryTakesTheApplicationsWords()
{
    ui::CBatteryStatusWidget battery;
    battery.setBatteryCharging(true);
    battery.setAccessibleName(QStringLiteral("Reserve battery"));
    battery.setAccessibleDescription(QStringLiteral("of the base station"));
    const QAccessibleInterface* interface = interfaceOf(&battery);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Reserve battery"));
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("of the base station"));
}

void tst_Accessibility::crumbIsALink()
{
    BreadCrumbsWidget crumbs(nullptr);
    crumbs.setRootPath(QStringLiteral("/data"));
    crumbs.changeDir(QStringLiteral("/data/a"));
    auto* crumb = crumbs.findChild<ClickableLabel*>();
    QVERIFY(crumb);
    QAccessibleInterface* interface = interfaceOf(crumb);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Link);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("a"));
    QVERIFY(interface->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
}

void tst_Accessibility::crumbTakesTheApplicationsWords()
{
    ClickableLabel label;
    label.setText(QStringLiteral("music"));
    QCOMPARE(descriptionOf(label), QString());
    label.setAccessibleName(QStringLiteral("Folder music"));
    QCOMPARE(interfaceOf(&label)->text(QAccessible::Name), QStringLiteral("Folder music"));
}

void tst_Accessibility::crumbIsPressed()
{
    ClickableLabel label(nullptr);
    const QSignalSpy spy(&label, &ClickableLabel::clicked);
    QAccessibleActionInterface* actions = interfaceOf(&label)->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.size(), 1);
    QVERIFY(!label.focusWidget());
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(label.focusWidget(), &label);
}

void tst_Accessibility::crumbDeletedByItsPress()
{
    auto* label = new ClickableLabel(nullptr);
    connect(label, &ClickableLabel::clicked, label, [label] { delete label; });
    interfaceOf(label)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

void tst_Accessibility::disabledCrumbIsNotPressed()
{
    ClickableLabel label(nullptr);
    label.setEnabled(false);
    const QSignalSpy spy(&label, &ClickableLabel::clicked);
    interfaceOf(&label)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.size(), 0);
}

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
