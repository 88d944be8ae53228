#include "SystemBattery.h"

#include <QDir>
#include <QFile>

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
