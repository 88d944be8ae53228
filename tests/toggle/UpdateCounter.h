#pragma once

#include <QObject>

namespace test {

/// Counts the events by which an animator tells \a target about a new value.
class UpdateCounter : public QObject
{
    Q_OBJECT

public:
    explicit UpdateCounter(QObject* target);

    /// How many came since the last call.
    int take();

    /// Whether none of them was marked accepted.
    bool allUnaccepted() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int m_count = 0;
    bool m_allUnaccepted = true;
};

} // namespace test
