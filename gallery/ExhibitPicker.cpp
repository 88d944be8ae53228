#include "ExhibitPicker.h"

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

ExhibitPicker::ExhibitPicker(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

void ExhibitPicker::setPage(GalleryPage* page)
{
    m_page = page;
    m_exhibits.clear();
    if (!page)
        return;
    for (const GalleryPage::Exhibit& exhibit : page->exhibits())
        m_exhibits.append(exhibit.widget);
}

bool ExhibitPicker::eventFilter(QObject* watched, QEvent* event)
{
    if (m_page && watched->isWidgetType() && isPick(*event)) {
        if (QWidget* exhibit = exhibitAround(static_cast<QWidget*>(watched)))
            Q_EMIT picked(exhibit);
    }
    return false;
}

QWidget* ExhibitPicker::exhibitAround(QWidget* widget) const
{
    for (; widget && widget != m_page; widget = widget->parentWidget()) {
        if (m_exhibits.contains(widget))
            return widget;
    }
    return nullptr;
}
