#include "Tools.h"

#include "GalleryPage.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QPainter>

namespace {

bool isPick(const QEvent& event)
{
    if (event.type() == QEvent::MouseButtonPress)
        return true;
    if (event.type() != QEvent::FocusIn)
        return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

} // namespace

DemoWidgetPicker::DemoWidgetPicker(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

void DemoWidgetPicker::setPage(GalleryPage* page)
{
    m_page = page;
    m_demoWidgets.clear();
    if (!page)
        return;
    for (const GalleryPage::DemoWidget& demoWidget : page->demoWidgets())
        m_demoWidgets.append(demoWidget.widget);
}

bool DemoWidgetPicker::eventFilter(QObject* watched, QEvent* event)
{
    if (m_page && watched->isWidgetType() && isPick(*event)) {
        if (QWidget* demoWidget = demoWidgetAround(static_cast<QWidget*>(watched)))
            Q_EMIT picked(demoWidget);
    }
    return false;
}

QWidget* DemoWidgetPicker::demoWidgetAround(QWidget* widget) const
{
    for (; widget && widget != m_page; widget = widget->parentWidget()) {
        if (m_demoWidgets.contains(widget))
            return widget;
    }
    return nullptr;
}

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
