#include "TestApplication.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <ui/CBatteryStatusWidget.h>

#include <QAccessible>
#include <QSignalSpy>

namespace {

QAccessibleInterface* interfaceOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void batteryIsAReadOnlyValue();
    void batteryTellsItsCondition();
    void batteryTakesTheApplicationsWords();
    void crumbIsALink();
    void crumbIsPressed();
    void crumbDeletedByItsPress();
    void disabledCrumbIsNotPressed();
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

void tst_Accessibility::crumbIsPressed()
{
    ClickableLabel label(nullptr);
    const QSignalSpy spy(&label, &ClickableLabel::clicked);
    QAccessibleActionInterface* actions = interfaceOf(&label)->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.size(), 1);
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(spy.size(), 1);
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

int main(int argc, char** argv)
{
    return test::run<tst_Accessibility>(argc, argv);
}

#include "tst_Accessibility.moc"
