#include "UpdateCounter.h"

#include <QEvent>

#include <utility>

namespace test {

UpdateCounter::UpdateCounter(QObject* target)
{
    target->installEventFilter(this);
}

int UpdateCounter::take()
{
    return std::exchange(m_count, 0);
}

bool UpdateCounter::allUnaccepted() const
{
    return m_allUnaccepted;
}

bool UpdateCounter::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::StyleAnimationUpdate) {
        ++m_count;
        m_allUnaccepted = m_allUnaccepted && !event->isAccepted();
    }
    return false;
}

} // namespace test
