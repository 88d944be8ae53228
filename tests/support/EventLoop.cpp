#include "EventLoop.h"

#include <QCoreApplication>

namespace test {

void processEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void waitUntilIdle()
{
    // Nothing that the widgets do takes more than two further iterations of the event loop.
    for (int i = 0; i < 3; ++i)
        processEvents();
}

} // namespace test
