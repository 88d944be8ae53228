#pragma once

#include <QObject>
#include <QString>

/// What the kernel says about a battery.
struct BatteryReading
{
    bool present = false;
    bool charging = false;
    int percent = 0;
};

/**
 * Reads the battery that powers this device from the kernel's power-supply class.
 *
 * Batteries of devices beside the device, such as a mouse, do not count. Of several batteries
 * the first that is present is read, in the order of their names.
 */
class SystemBattery
{
public:
    /// Reads below \a directory, which holds one directory per power supply.
    explicit SystemBattery(const QString& directory = QStringLiteral("/sys/class/power_supply"));

    /// The battery as it is now; absent where there is none or the kernel does not know its charge.
    BatteryReading read() const;

private:
    QString m_directory;
};

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
