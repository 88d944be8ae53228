#include "ExhibitPicker.h"

#include "GalleryPage.h"

#include <QApplication>
#include <QFocusEvent>

#include <algorithm>

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
    const QList<GalleryPage::Exhibit>& exhibits = m_page->exhibits();
    for (; widget && widget != m_page; widget = widget->parentWidget()) {
        const bool isExhibit =
            std::any_of(exhibits.cbegin(), exhibits.cend(),
                        [widget](const auto& exhibit) { return exhibit.widget == widget; });
        if (isExhibit)
            return widget;
    }
    return nullptr;
}
