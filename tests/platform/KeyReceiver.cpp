#include "KeyReceiver.h"

#include <QKeyEvent>

#include <utility>

namespace test {

namespace {

QString description(const QString& what, const QKeyEvent& event)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(what, QString::number(event.key(), 16), QString::number(int(event.modifiers()), 16),
             event.text());
}

} // namespace

QStringList KeyReceiver::takeEvents()
{
    return std::exchange(m_events, {});
}

void KeyReceiver::keyPressEvent(QKeyEvent* event)
{
    m_events.append(description(QStringLiteral("press"), *event));
}

void KeyReceiver::keyReleaseEvent(QKeyEvent* event)
{
    m_events.append(description(QStringLiteral("release"), *event));
}

} // namespace test
