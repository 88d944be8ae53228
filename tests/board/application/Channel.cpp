#include "Channel.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

Channel::Channel(const QString& device, QObject* parent)
    : QObject(parent)
{
    const int file = open(qPrintable(device), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (file < 0 || !m_file.open(file, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle)) {
        qWarning("there is no port %s", qPrintable(device));
        return;
    }
    auto* notifier = new QSocketNotifier(file, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Channel::read);
}

void Channel::send(const QByteArray& line)
{
    const QByteArray text = line + '\n';
    for (qint64 sent = 0; sent < text.size();) {
        const ssize_t count =
            ::write(m_file.handle(), text.constData() + sent, std::size_t(text.size() - sent));
        if (count > 0)
            sent += count;
    }
}

void Channel::read()
{
    char buffer[4096];
    const ssize_t count = ::read(m_file.handle(), buffer, sizeof buffer);
    if (count > 0)
        m_unread.append(buffer, int(count));
    for (int end; (end = m_unread.indexOf('\n')) >= 0;) {
        const QByteArray line = m_unread.left(end);
        m_unread.remove(0, end + 1);
        Q_EMIT received(line);
    }
}
