#pragma once

#include <QObject>

/**
 * Says when the kernel reports a change of a battery or a charger.
 *
 * In between nothing wakes the application: it is the kernel that sends the message.
 */
class PowerSupplyEvents : public QObject
{
    Q_OBJECT

public:
    /// Listens to the kernel, or to nothing where it cannot be listened to.
    explicit PowerSupplyEvents(QObject* parent = nullptr);
    /// Listens to messages as the kernel sends them on \a socket, and closes it in the end.
    explicit PowerSupplyEvents(int socket, QObject* parent = nullptr);
    ~PowerSupplyEvents() override;

Q_SIGNALS:
    void changed();

private:
    void read();

    int m_socket;
};
