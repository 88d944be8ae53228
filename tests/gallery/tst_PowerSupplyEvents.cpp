#include "SystemBattery.h"
#include "TestApplication.h"

#include <QSignalSpy>
#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// As the kernel writes it: a heading and entries, each ended by a null character.
QByteArray message(const QByteArrayList& lines)
{
    return lines.join('\0') + '\0';
}

QByteArray batteryMessage()
{
    return message({"change@/devices/LNXSYSTM:00/PNP0C0A:00/power_supply/BAT0", "ACTION=change",
                    "SUBSYSTEM=power_supply", "POWER_SUPPLY_NAME=BAT0"});
}

/// The kernel's end of a pair of sockets, and what listens at the other one.
class Sender
{
public:
    Sender()
    {
        int ends[2] = {-1, -1};
        if (socketpair(AF_UNIX, SOCK_DGRAM, 0, ends) != 0)
            qFatal("there is no pair of sockets");
        m_end = ends[0];
        listenerEnd = ends[1];
    }

    ~Sender()
    {
        close(m_end);
    }

    Q_DISABLE_COPY(Sender)

    void send(const QByteArray& message) const
    {
        QCOMPARE(write(m_end, message.constData(), size_t(message.size())), message.size());
    }

    int listenerEnd = -1;

private:
    int m_end = -1;
};

} // namespace

class tst_PowerSupplyEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsPowerSupplies();
    void severalMessagesAreOneChange();
    void otherDevicesAreNone();
    void readsOnlyWholeEntries();
    void closesItsSocket();
    void listensToKernel();
    void silentWithoutSocket();
};

void tst_PowerSupplyEvents::reportsPowerSupplies()
{
    const Sender kernel;
    const PowerSupplyEvents events(kernel.listenerEnd);
    QSignalSpy changed(&events, &PowerSupplyEvents::changed);
    for (int count = 1; count <= 2; ++count) {
        kernel.send(batteryMessage());
        QTRY_COMPARE(changed.count(), count);
    }
}

void tst_PowerSupplyEvents::severalMessagesAreOneChange()
{
    const Sender kernel;
    const PowerSupplyEvents events(kernel.listenerEnd);
    QSignalSpy changed(&events, &PowerSupplyEvents::changed);
    kernel.send(message({"change@/devices/ethernet", "SUBSYSTEM=net"}));
    kernel.send(batteryMessage());
    kernel.send(batteryMessage());
    kernel.send(message({"add@/devices/usb", "SUBSYSTEM=usb"}));
    QTRY_COMPARE(changed.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 1);
}

void tst_PowerSupplyEvents::otherDevicesAreNone()
{
    const Sender kernel;
    const PowerSupplyEvents events(kernel.listenerEnd);
    QSignalSpy changed(&events, &PowerSupplyEvents::changed);
    kernel.send(message({"add@/devices/usb", "SUBSYSTEM=usb"}));
    kernel.send("");
    kernel.send("\xff\n=");
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
}

void tst_PowerSupplyEvents::readsOnlyWholeEntries()
{
    const Sender kernel;
    const PowerSupplyEvents events(kernel.listenerEnd);
    QSignalSpy changed(&events, &PowerSupplyEvents::changed);
    kernel.send(message({"add@/devices/x", "NAME=SUBSYSTEM=power_supply"}));
    kernel.send(message({"add@/devices/x", "SUBSYSTEM=power_supply_two"}));
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
}

void tst_PowerSupplyEvents::closesItsSocket()
{
    const Sender kernel;
    delete new PowerSupplyEvents(kernel.listenerEnd);
    QCOMPARE(fcntl(kernel.listenerEnd, F_GETFD), -1);
}

void tst_PowerSupplyEvents::listensToKernel()
{
    const PowerSupplyEvents events;
    QVERIFY(events.findChild<QSocketNotifier*>());
}

void tst_PowerSupplyEvents::silentWithoutSocket()
{
    const PowerSupplyEvents events(-1);
    QVERIFY(!events.findChild<QSocketNotifier*>());
}

const test::Registration<tst_PowerSupplyEvents> registration;

#include "tst_PowerSupplyEvents.moc"
