#include "SystemBattery.h"

#include <QDir>
#include <QFile>
#include <QSocketNotifier>

#include <cerrno>
#include <linux/netlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// Enough for every attribute read here.
constexpr qint64 longestAttribute = 64;

/// The text of the attribute \a name, null if the supply has none.
QByteArray attribute(const QDir& supply, const QString& name)
{
    QFile file(supply.filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.read(longestAttribute).trimmed();
}

bool powersTheDevice(const QDir& supply)
{
    return attribute(supply, QStringLiteral("type")) == "Battery"
        && attribute(supply, QStringLiteral("scope")) != "Device";
}

BatteryReading readingOf(const QDir& supply)
{
    BatteryReading reading;
    bool known = false;
    reading.percent = qBound(0, attribute(supply, QStringLiteral("capacity")).toInt(&known), 100);
    // Only batteries that can be taken out have the attribute.
    reading.present = known && attribute(supply, QStringLiteral("present")) != "0";
    reading.charging = attribute(supply, QStringLiteral("status")) == "Charging";
    return reading;
}

} // namespace

SystemBattery::SystemBattery(const QString& directory)
    : m_directory(directory)
{
}

BatteryReading SystemBattery::read() const
{
    const QDir supplies(m_directory);
    const QStringList names = supplies.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        const QDir supply(supplies.filePath(name));
        if (!powersTheDevice(supply))
            continue;
        const BatteryReading reading = readingOf(supply);
        if (reading.present)
            return reading;
    }
    return {};
}

namespace {

constexpr int messageSize = 8192; ///< Twice what the kernel puts into one.

/// A socket on which the kernel tells every listener about its devices; negative without one.
int kernelSocket()
{
    const int file = socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_KOBJECT_UEVENT);
    sockaddr_nl address = {};
    address.nl_family = AF_NETLINK;
    address.nl_groups = 1; // the kernel's own messages, without those of a device manager
    if (file < 0 || bind(file, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0)
        return file;
    close(file);
    return -1;
}

/// A message is a heading and a list of KEY=value, each ended by a null character.
bool isAboutPowerSupply(const QByteArray& message)
{
    return message.split('\0').contains("SUBSYSTEM=power_supply");
}

} // namespace

PowerSupplyEvents::PowerSupplyEvents(QObject* parent)
    : PowerSupplyEvents(kernelSocket(), parent)
{
}

PowerSupplyEvents::PowerSupplyEvents(int socket, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
{
    if (m_socket < 0)
        return;
    auto* notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &PowerSupplyEvents::read);
}

PowerSupplyEvents::~PowerSupplyEvents()
{
    delete findChild<QSocketNotifier*>(); // it may not outlive its socket
    if (m_socket >= 0)
        close(m_socket);
}

void PowerSupplyEvents::read()
{
    QByteArray message(messageSize, Qt::Uninitialized);
    bool isChanged = false;
    ssize_t size = 0;
    while ((size = recv(m_socket, message.data(), messageSize, MSG_DONTWAIT)) > 0)
        isChanged |= isAboutPowerSupply(message.left(int(size)));
    if (size < 0 && errno == ENOBUFS) // messages were lost: they may have been about one
        isChanged = true;
    if (isChanged)
        Q_EMIT changed();
}
