#include "DemoWidgetPicker.h"

#include "GalleryPage.h"

#include <QApplication>
#include <QFocusEvent>

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
