#include "ScreenPart.h"

#include <ui/KeypadPopup.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>

#include <algorithm>

namespace {

QWidgetList visibleWidgets()
{
    QWidgetList widgets = QApplication::allWidgets();
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(),
                                 [](const QWidget* widget) { return !widget->isVisible(); }),
                  widgets.end());
    return widgets;
}

QWidget* start(const QString& name)
{
    if (name == QLatin1String("popup"))
        return QApplication::activePopupWidget();
    QWidgetList found = visibleWidgets();
    const auto isOther = [&name](const QWidget* widget) {
        return name == QLatin1String("keypad") ? !qobject_cast<const ui::KeypadPopup*>(widget)
                                               : widget->objectName() != name;
    };
    found.erase(std::remove_if(found.begin(), found.end(), isOther), found.end());
    return found.size() == 1 ? found.first() : nullptr; // Qt lists them in no order
}

bool isCalled(const QWidget& widget, const QString& name)
{
    return widget.objectName() == name || widget.accessibleName() == name
        || widget.property("text").toString() == name
        || QLatin1String(widget.metaObject()->className()) == name;
}

QWidget* descendant(const QWidget& widget, const QString& name)
{
    const auto inside = widget.findChildren<QWidget*>();
    const auto found = std::find_if(inside.cbegin(), inside.cend(), [&name](const QWidget* each) {
        return each->isVisible() && isCalled(*each, name);
    });
    return found == inside.cend() ? nullptr : *found;
}

ScreenPart itemOf(const QAbstractItemView& view, const QString& text)
{
    const QAbstractItemModel* model = view.model();
    for (int row = 0; model && row < model->rowCount(view.rootIndex()); ++row) {
        const QModelIndex index = model->index(row, 0, view.rootIndex());
        if (index.data().toString() == text)
            return {view.viewport(), view.visualRect(index)};
    }
    return {};
}

ScreenPart entryOf(QMenu& menu, const QString& text)
{
    const auto actions = menu.actions();
    for (QAction* action : actions) {
        if (action->text() == text)
            return {&menu, menu.actionGeometry(action)};
    }
    return {};
}

ScreenPart item(QWidget& widget, const QString& text)
{
    if (auto* menu = qobject_cast<QMenu*>(&widget))
        return entryOf(*menu, text);
    QList<QAbstractItemView*> views = widget.findChildren<QAbstractItemView*>();
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget))
        views.prepend(view);
    for (const QAbstractItemView* view : qAsConst(views)) {
        const ScreenPart found = view->isVisible() ? itemOf(*view, text) : ScreenPart();
        if (found.widget)
            return found;
    }
    return {};
}

} // namespace

ScreenPart ScreenPart::find(const QString& path)
{
    const QStringList names = path.split(QStringLiteral(" > "));
    QWidget* widget = start(names.first());
    for (int i = 1; widget && i < names.size(); ++i) {
        QWidget* const inside = descendant(*widget, names.at(i));
        if (!inside)
            return item(*widget, names.at(i));
        widget = inside;
    }
    return {widget, widget ? widget->rect() : QRect()};
}

bool ScreenPart::isInSight() const
{
    QPoint point = rect.center();
    for (const QWidget* each = widget; each->rect().contains(point); each = each->parentWidget()) {
        if (each->isWindow())
            return true;
        point = each->mapToParent(point);
    }
    return false;
}

QRect ScreenPart::onScreen() const
{
    const QRect global(widget->mapToGlobal(rect.topLeft()), rect.size());
    const qreal ratio = widget->devicePixelRatioF();
    return QRectF(QPointF(global.topLeft()) * ratio, QSizeF(global.size()) * ratio).toRect();
}
