#include "OpenMenu.h"

#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

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

bool withMenu(const BreadCrumbsWidget& bar, const std::function<void(QMenu&)>& inspect)
{
    QObject context;
    QPointer<QMenu> opened;
    bool seen = false;
    whenMenuOpens(&context, [&](QMenu& menu) {
        seen = true;
        opened = &menu;
        inspect(menu);
        if (opened)
            opened->close();
    });
    moreButton(bar)->click(); // returns when the menu is closed
    return QTest::qWaitFor([&] { return opened.isNull(); }) && seen;
}

} // namespace test
