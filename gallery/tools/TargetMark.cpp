#include "TargetMark.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int distance = 3; // between the widget and the outline
constexpr int thickness = 2;

} // namespace

TargetMark::TargetMark(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void TargetMark::mark(QWidget* page, QWidget* target)
{
    for (QWidget* widget = m_target; widget && widget != parentWidget();
         widget = widget->parentWidget())
        widget->removeEventFilter(this);
    m_target = target;
    if (!target) {
        hide();
        return;
    }
    if (page != parentWidget())
        setParent(page);
    for (QWidget* widget = m_target; widget && widget != page; widget = widget->parentWidget())
        widget->installEventFilter(this);
    follow();
}

bool TargetMark::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        follow();
        break;
    default:
        break;
    }
    return false;
}

void TargetMark::follow()
{
    if (!m_target || !parentWidget())
        return;
    constexpr int margin = distance + thickness;
    const QRect around(m_target->mapTo(parentWidget(), QPoint()), m_target->size());
    const QRect wanted = around.adjusted(-margin, -margin, margin, margin);
    setGeometry(wanted);
    setMask(QRegion(rect()) - rect().adjusted(thickness, thickness, -thickness, -thickness));
    setVisible(m_target->isVisibleTo(parentWidget()));
    raise();
}

void TargetMark::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::Active, QPalette::Highlight));
}
