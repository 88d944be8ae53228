#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace test {

/// A directory tree like the kernel's power-supply class, with attributes of the test's choice.
class PowerSupplyTree
{
public:
    QString path() const
    {
        return m_directory.path();
    }

    void write(const QByteArray& supply, const QByteArray& attribute, const QByteArray& text)
    {
        const QString directory = m_directory.filePath(QString::fromLatin1(supply));
        QDir().mkpath(directory);
        QFile file(directory + QLatin1Char('/') + QString::fromLatin1(attribute));
        if (!file.open(QIODevice::WriteOnly) || file.write(text + '\n') < 0)
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

    void addBattery(const QByteArray& supply, const QByteArray& capacity, const QByteArray& status)
    {
        write(supply, "type", "Battery");
        write(supply, "capacity", capacity);
        write(supply, "status", status);
    }

private:
    QTemporaryDir m_directory;
};

} // namespace test
