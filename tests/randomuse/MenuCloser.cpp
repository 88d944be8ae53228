#include "MenuCloser.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QPointer>
#include <QTimer>

namespace soak {

namespace {

void end(const QPointer<QMenu>& menu, bool choose)
{
    if (choose && !menu->actions().isEmpty())
        menu->actions().first()->trigger();
    if (menu)
        menu->close();
}

} // namespace

MenuCloser::MenuCloser()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuCloser::eventFilter(QObject* watched, QEvent* event)
{
    auto* menu = event->type() == QEvent::Show ? qobject_cast<QMenu*>(watched) : nullptr;
    if (menu) {
        m_choose = !m_choose;
        QTimer::singleShot(0, menu, [menu, choose = m_choose] { end(menu, choose); });
    }
    return false;
}

} // namespace soak
