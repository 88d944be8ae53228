#include "EventLoop.h"

#include <QCoreApplication>

namespace test {

void processEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace test
