#include "TestApplication.h"

#include <ui/CBatteryStatusWidget.h>

#include <QAccessible>

using ui::CBatteryStatusWidget;

namespace {

struct Announcement
{
    const QObject* sender;
    QVariant value;
};

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
    if (event->type() == QAccessible::ValueChanged)
        announcements().append(
            {event->object(), static_cast<QAccessibleValueChangeEvent*>(event)->value()});
}

/// What assistive technology learns of a battery, in a process that has used no other class.
class tst_CBatteryStatusWidgetAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAValue();
    void announcesTheCharge();
    void announcesNothingWhileNobodyListens();
};

void tst_CBatteryStatusWidgetAccessibility::hasAValue()
{
    CBatteryStatusWidget battery;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&battery);
    QVERIFY(interface);
    QVERIFY(interface->valueInterface());
}

void tst_CBatteryStatusWidgetAccessibility::announcesTheCharge()
{
    CBatteryStatusWidget battery;
    for (const int percent : {57, 57, 150, -5, 1, 100, 0})
        battery.setChargePercentage(percent);
    QVector<QVariant> charges;
    for (const Announcement& announcement : qAsConst(announcements())) {
        QCOMPARE(announcement.sender, &battery);
        charges.append(announcement.value);
    }
    QCOMPARE(charges, (QVector<QVariant>{57, 100, 0, 1, 100, 0}));
}

void tst_CBatteryStatusWidgetAccessibility::announcesNothingWhileNobodyListens()
{
    isListening = false;
    announcements().clear();
    CBatteryStatusWidget battery;
    battery.setChargePercentage(40);
    QVERIFY(announcements().isEmpty());
}

int main(int argc, char** argv)
{
    return test::run<tst_CBatteryStatusWidgetAccessibility>(argc, argv);
}

#include "tst_CBatteryStatusWidgetAccessibility.moc"
