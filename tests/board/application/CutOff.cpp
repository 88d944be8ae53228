#include "CutOff.h"

#include <ClickableLabel.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QLabel>
#include <QScrollBar>
#include <QVariant>
#include <QWidget>

namespace {

/// The scroll area that moves \a widget; null if there is none.
const QAbstractScrollArea* scrollAreaOf(const QWidget& widget)
{
    const auto* area =
        qobject_cast<const QAbstractScrollArea*>(widget.parentWidget()->parentWidget());
    return area && area->viewport() == widget.parentWidget() ? area : nullptr;
}

QSize roomOf(const QWidget& widget)
{
    const QWidget& parent = *widget.parentWidget();
    const QAbstractScrollArea* area = scrollAreaOf(widget);
    if (!area)
        return parent.size();
    return parent.size()
        + QSize(area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum());
}

bool reachesBeyond(const QWidget& widget)
{
    const QSize room = roomOf(widget);
    if (scrollAreaOf(widget))
        return widget.width() > room.width() || widget.height() > room.height();
    return !QRect(QPoint(), room).contains(widget.geometry());
}

bool lacksRoomForText(const QWidget& widget)
{
    const bool showsText =
        qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
    if (!showsText || qobject_cast<const ClickableLabel*>(&widget)) // which elides its text
        return false;
    const QSize needed = widget.minimumSizeHint();
    return needed.width() > widget.width() || needed.height() > widget.height();
}

QString nameOf(const QWidget& widget)
{
    return QString::fromLatin1(widget.metaObject()->className()) + QLatin1Char(' ')
        + (widget.objectName().isEmpty() ? widget.property("text").toString()
                                         : widget.objectName());
}

} // namespace

QStringList cutOff(const QWidget& window)
{
    QStringList names;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->isVisible() && !widget->isWindow()
            && (reachesBeyond(*widget) || lacksRoomForText(*widget)))
            names.append(nameOf(*widget));
    }
    return names;
}
