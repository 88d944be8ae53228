#include "EventCounter.h"

#include <QCoreApplication>

#include <utility>

namespace test {

EventCounter::EventCounter(QObject* object, QEvent::Type type)
    : m_type(type)
{
    object->installEventFilter(this);
}

int EventCounter::take()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    return std::exchange(m_count, 0);
}

bool EventCounter::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == m_type)
        ++m_count;
    return false;
}

} // namespace test
