#include "Switch.h"
#include "TestApplication.h"

#include <QAccessible>

/// What a screen reader learns of a switch.
class tst_SwitchAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roleAndName();
    void state();
    void toggleAction();
    void pressAction();
};

void tst_SwitchAccessibility::roleAndName()
{
    Switch control(QStringLiteral("Wi-Fi"));
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&control);
    QVERIFY(reader);
    QCOMPARE(reader->role(), QAccessible::CheckBox);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Wi-Fi"));
    control.setAccessibleName(QStringLiteral("Wireless network"));
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Wireless network"));
}

void tst_SwitchAccessibility::state()
{
    Switch control(QStringLiteral("Wi-Fi"));
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&control);
    QVERIFY(reader->state().checkable);
    QVERIFY(!reader->state().checked);
    QVERIFY(reader->state().focusable);
    QVERIFY(!reader->state().disabled);
    control.setChecked(true);
    QVERIFY(reader->state().checked);
    control.setEnabled(false);
    QVERIFY(reader->state().disabled);
}

void tst_SwitchAccessibility::toggleAction()
{
    Switch control(QStringLiteral("Wi-Fi"));
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(&control)->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    QSignalSpy states(&control, &SelectionControl::stateChanged);
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(control.isChecked());
    QCOMPARE(states.size(), 1);
}

void tst_SwitchAccessibility::pressAction()
{
    Switch control(QStringLiteral("Wi-Fi"));
    control.show();
    QSignalSpy clicks(&control, &QAbstractButton::clicked);
    QAccessible::queryAccessibleInterface(&control)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(clicks.size(), 1);
    QVERIFY(control.isChecked());
}

const test::Registration<tst_SwitchAccessibility> registration;

#include "tst_SwitchAccessibility.moc"
