#include "PowerSupplyTree.h"
#include "SystemBattery.h"
#include "TestApplication.h"

using test::PowerSupplyTree;

class tst_SystemBattery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noDirectory();
    void noSupplies();
    void discharging();
    void status_data();
    void status();
    void chargeOutOfRange();
    void unknownCharge();
    void emptySlot();
    void otherSupplies();
    void firstPresentBattery();
    void followsTheKernel();
};

void tst_SystemBattery::noDirectory()
{
    QVERIFY(!SystemBattery(QStringLiteral("/nonexistent/power_supply")).read().present);
}

void tst_SystemBattery::noSupplies()
{
    const PowerSupplyTree tree;
    QVERIFY(!SystemBattery(tree.path()).read().present);
}

void tst_SystemBattery::discharging()
{
    PowerSupplyTree tree;
    tree.addBattery("BAT0", "73", "Discharging");
    const BatteryReading reading = SystemBattery(tree.path()).read();
    QVERIFY(reading.present);
    QVERIFY(!reading.charging);
    QCOMPARE(reading.percent, 73);
}

void tst_SystemBattery::status_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<bool>("charging");
    QTest::newRow("charging") << QByteArray("Charging") << true;
    QTest::newRow("full") << QByteArray("Full") << false;
    QTest::newRow("not charging") << QByteArray("Not charging") << false;
    QTest::newRow("unknown") << QByteArray("Unknown") << false;
}

void tst_SystemBattery::status()
{
    QFETCH(QByteArray, status);
    PowerSupplyTree tree;
    tree.addBattery("BAT0", "50", status);
    QTEST(SystemBattery(tree.path()).read().charging, "charging");
}

void tst_SystemBattery::chargeOutOfRange()
{
    PowerSupplyTree tree;
    tree.addBattery("BAT0", "104", "Full");
    QCOMPARE(SystemBattery(tree.path()).read().percent, 100);
    tree.write("BAT0", "capacity", "-3");
    QCOMPARE(SystemBattery(tree.path()).read().percent, 0);
}

void tst_SystemBattery::unknownCharge()
{
    PowerSupplyTree tree;
    tree.write("BAT0", "type", "Battery");
    QVERIFY(!SystemBattery(tree.path()).read().present);
    tree.write("BAT0", "capacity", "plenty");
    QVERIFY(!SystemBattery(tree.path()).read().present);
}

void tst_SystemBattery::emptySlot()
{
    PowerSupplyTree tree;
    tree.addBattery("BAT0", "0", "Unknown");
    tree.write("BAT0", "present", "0");
    QVERIFY(!SystemBattery(tree.path()).read().present);
    tree.write("BAT0", "present", "1");
    QVERIFY(SystemBattery(tree.path()).read().present);
}

void tst_SystemBattery::otherSupplies()
{
    PowerSupplyTree tree;
    tree.addBattery("AC", "90", "Charging");
    tree.write("AC", "type", "Mains");
    tree.addBattery("hid-mouse-battery", "80", "Discharging");
    tree.write("hid-mouse-battery", "scope", "Device");
    QVERIFY(!SystemBattery(tree.path()).read().present);
    tree.write("hid-mouse-battery", "scope", "System");
    QCOMPARE(SystemBattery(tree.path()).read().percent, 80);
}

void tst_SystemBattery::firstPresentBattery()
{
    PowerSupplyTree tree;
    tree.addBattery("BAT2", "22", "Discharging");
    tree.addBattery("BAT1", "11", "Discharging");
    tree.addBattery("BAT0", "5", "Unknown");
    tree.write("BAT0", "present", "0");
    QCOMPARE(SystemBattery(tree.path()).read().percent, 11);
}

void tst_SystemBattery::followsTheKernel()
{
    PowerSupplyTree tree;
    tree.addBattery("BAT0", "50", "Discharging");
    const SystemBattery battery(tree.path());
    QCOMPARE(battery.read().percent, 50);
    tree.write("BAT0", "capacity", "49");
    QCOMPARE(battery.read().percent, 49);
}

const test::Registration<tst_SystemBattery> registration;

#include "tst_SystemBattery.moc"
