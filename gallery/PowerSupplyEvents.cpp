#include "PowerSupplyEvents.h"

#include <QSocketNotifier>

#include <cerrno>
#include <linux/netlink.h>
#include <sys/socket.h>
#include <unistd.h>

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
    ssize_t size;
    while ((size = recv(m_socket, message.data(), messageSize, MSG_DONTWAIT)) > 0)
        isChanged |= isAboutPowerSupply(message.left(int(size)));
    if (size < 0 && errno == ENOBUFS) // messages were lost: they may have been about one
        isChanged = true;
    if (isChanged)
        Q_EMIT changed();
}
