#include "NextMenu.h"

#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <QWindow>

namespace test {

namespace {

constexpr int pollInterval = 10; // milliseconds

} // namespace

void whenMenuOpens(QObject* context, const std::function<void(QMenu&)>& use)
{
    auto* timer = new QTimer(context);
    timer->setInterval(pollInterval);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, use] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu || !menu->windowHandle() || !menu->windowHandle()->isExposed())
            return;
        timer->stop();
        timer->deleteLater();
        use(*menu);
    });
    timer->start();
}

} // namespace test
