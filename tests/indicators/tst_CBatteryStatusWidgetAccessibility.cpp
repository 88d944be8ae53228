#include "TestApplication.h"

#include <ui/CBatteryStatusWidget.h>

#include <QAccessible>

#include <utility>

using ui::CBatteryStatusWidget;

namespace {

struct Announcement
{
    const QObject* sender;
    QAccessible::Event type;
    QVariant value; ///< Of a change of the value.
    QString condition; ///< The battery's description at that time.
};

QAccessibleInterface* interfaceOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QVector<Announcement>& announcements()
{
    static QVector<Announcement> instance;
    return instance;
}

bool isListening = true;

} // namespace

// These take the place of Qt's, which ask the desktop: a program's own definitions come first.

bool QAccessible::isActive()
{
    return isListening;
}

void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    QVariant value;
    if (event->type() == QAccessible::ValueChanged)
        value = static_cast<QAccessibleValueChangeEvent*>(event)->value();
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(event->object());
    const QString condition = interface ? interface->text(QAccessible::Description) : QString();
    announcements().append({event->object(), event->type(), value, condition});
}

/// What assistive technology learns of a battery, in a process that has used no other class.
class tst_CBatteryStatusWidgetAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAReadOnlyValue();
    void isNotPressed();
    void tellsItsCondition();
    void takesTheApplicationsWords();
    void announcesTheCharge();
    void announcesItsCondition();
    void announcesNothingWhileNobodyListens();
};

void tst_CBatteryStatusWidgetAccessibility::isAReadOnlyValue()
{
    CBatteryStatusWidget battery;
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

void tst_CBatteryStatusWidgetAccessibility::isNotPressed()
{
    CBatteryStatusWidget battery;
    QAccessibleActionInterface* actions = interfaceOf(&battery)->actionInterface();
    QVERIFY(actions);
    const QString press = QAccessibleActionInterface::pressAction();
    QVERIFY(!actions->actionNames().contains(press));
    actions->doAction(press);
}

void tst_CBatteryStatusWidgetAccessibility::tellsItsCondition()
{
    CBatteryStatusWidget battery;
    const QAccessibleInterface* interface = interfaceOf(&battery);
    QCOMPARE(interface->text(QAccessible::Description), QString());
    battery.setBatteryCharging(true);
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("charging"));
    battery.setBatteryPresent(false);
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("absent"));
}

void tst_CBatteryStatusWidgetAccessibility::takesTheApplicationsWords()
{
    CBatteryStatusWidget battery;
    battery.setBatteryCharging(true);
    battery.setAccessibleName(QStringLiteral("Reserve battery"));
    battery.setAccessibleDescription(QStringLiteral("of the base station"));
    const QAccessibleInterface* interface = interfaceOf(&battery);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Reserve battery"));
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("of the base station"));
}

void tst_CBatteryStatusWidgetAccessibility::announcesTheCharge()
{
    CBatteryStatusWidget battery;
    announcements().clear();
    for (const int percent : {57, 57, 150, -5, 1, 100, 0})
        battery.setChargePercentage(percent);
    QVector<QVariant> charges;
    for (const Announcement& announcement : qAsConst(announcements())) {
        QCOMPARE(announcement.sender, &battery);
        QCOMPARE(announcement.type, QAccessible::ValueChanged);
        charges.append(announcement.value);
    }
    QCOMPARE(charges, (QVector<QVariant>{57, 100, 0, 1, 100, 0}));
}

/// One announcement for each change, when the new description can be read.
void tst_CBatteryStatusWidgetAccessibility::announcesItsCondition()
{
    CBatteryStatusWidget battery;
    announcements().clear();
    const auto announced = [&battery](const QString& condition) {
        const QVector<Announcement> all = std::exchange(announcements(), {});
        return all.size() == 1 && all.first().sender == &battery
            && all.first().type == QAccessible::DescriptionChanged
            && all.first().condition == condition;
    };
    battery.setBatteryPresent(true);
    battery.setBatteryCharging(false);
    QVERIFY(announcements().isEmpty());
    battery.setBatteryCharging(true);
    QVERIFY(announced(QStringLiteral("charging")));
    battery.setBatteryPresent(false);
    QVERIFY(announced(QStringLiteral("absent")));
    battery.setBatteryPresent(true);
    QVERIFY(announced(QStringLiteral("charging")));
    battery.setBatteryCharging(false);
    QVERIFY(announced(QString()));
    battery.setBatteryCharging(false);
    QVERIFY(announcements().isEmpty());
}

void tst_CBatteryStatusWidgetAccessibility::announcesNothingWhileNobodyListens()
{
    isListening = false;
    announcements().clear();
    CBatteryStatusWidget battery;
    battery.setChargePercentage(40);
    battery.setBatteryPresent(false);
    battery.setBatteryCharging(true);
    QVERIFY(announcements().isEmpty());
}

int main(int argc, char** argv)
{
    return test::run<tst_CBatteryStatusWidgetAccessibility>(argc, argv);
}

#include "tst_CBatteryStatusWidgetAccessibility.moc"
