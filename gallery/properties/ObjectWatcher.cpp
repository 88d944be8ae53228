#include "ObjectWatcher.h"

#include <QEvent>
#include <QMetaMethod>
#include <QTimerEvent>

namespace {

/// Milliseconds from the first change to the report: fresh enough to follow, too rare to cost.
constexpr int delay = 100;

/// What a mouse or a timer does comes without a change, or with a painting.
bool mayTellOfChange(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseMove:
    case QEvent::HoverMove:
    case QEvent::Timer:
    case QEvent::MetaCall:
    case QEvent::Enter:
    case QEvent::Leave:
        return false;
    default:
        return true;
    }
}

} // namespace

ObjectWatcher::ObjectWatcher(QObject* parent)
    : QObject(parent)
{
}

void ObjectWatcher::setTarget(QObject* target)
{
    if (target == m_target)
        return;
    if (m_target) {
        m_target->removeEventFilter(this);
        m_target->disconnect(this);
    }
    m_timer.stop();
    m_target = target;
    if (m_target) {
        m_target->installEventFilter(this);
        connectSignals();
    }
}

bool ObjectWatcher::eventFilter(QObject*, QEvent* event)
{
    if (mayTellOfChange(event->type()))
        schedule();
    return false;
}

void ObjectWatcher::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    m_timer.stop();
    Q_EMIT changed();
}

void ObjectWatcher::schedule()
{
    if (!m_timer.isActive())
        m_timer.start(delay, this);
}

void ObjectWatcher::connectSignals()
{
    const QMetaObject& meta = *m_target->metaObject();
    const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("schedule()"));
    for (int index = 0; index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        if (method.methodType() == QMetaMethod::Signal)
            connect(m_target, method, this, slot);
    }
}
