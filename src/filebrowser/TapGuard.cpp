#include "TapGuard.h"

#include <QMouseEvent>
#include <QWidget>

namespace ui {

TapGuard::TapGuard(QWidget* viewport)
{
    viewport->installEventFilter(this);
}

void TapGuard::directoryOpened()
{
    if (m_pressed) // else the program or a key has done it
        m_opened = true;
}

bool TapGuard::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        break;
    default:
        return false;
    }
    const auto* mouse = static_cast<QMouseEvent*>(event);
    m_pressed = mouse->buttons() != Qt::NoButton;
    const bool newTap =
        mouse->type() == QEvent::MouseButtonPress && mouse->buttons() == mouse->button();
    if (newTap)
        m_opened = false;
    return m_opened && m_pressed; // a release always reaches the view
}

} // namespace ui
