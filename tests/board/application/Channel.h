#pragma once

#include <QFile>
#include <QObject>

QT_BEGIN_NAMESPACE
class QSocketNotifier;
QT_END_NAMESPACE

/// The serial port to the host: a question a line, an answer a line.
class Channel : public QObject
{
    Q_OBJECT

public:
    explicit Channel(const QString& device, QObject* parent = nullptr);

    void send(const QByteArray& line);

Q_SIGNALS:
    void received(const QByteArray& line);

private:
    void read();

    QFile m_file;
    QByteArray m_unread;
};
