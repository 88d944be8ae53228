#pragma once

#include <QEvent>
#include <QObject>

namespace test {

/// Counts the events of one type that an object receives.
class EventCounter : public QObject
{
    Q_OBJECT

public:
    /// Watches \a object, which must outlive the counter's last use.
    EventCounter(QObject* object, QEvent::Type type);

    /// How many came since the last call, after the pending ones have been delivered.
    int take();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QEvent::Type m_type;
    int m_count = 0;
};

} // namespace test
