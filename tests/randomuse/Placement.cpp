#include "WidgetMachine.h"

namespace soak {

namespace {

constexpr int largestWindow = 1000; // a window's pixels take memory

void resize(QWidget& widget, const QSize& size)
{
    const QSize limit(largestWindow, largestWindow);
    widget.resize(widget.isWindow() ? size.boundedTo(limit) : size);
}

/// Qt leaves a window that is not active with a pointer to its focus widget if that is hidden, moved to
/// another window and deleted.
void leaveFocus(const QWidget& widget)
{
    QWidget* focused = widget.window()->focusWidget();
    if (focused && (focused == &widget || widget.isAncestorOf(focused)))
        focused->clearFocus();
}

/// Into one of the windows, or a window of its own.
void reparent(WidgetMachine& machine, Values& values)
{
    QWidget* widget = machine.widget();
    leaveFocus(*widget);
    if (values.below(4) == 0) {
        resize(*widget, widget->size().boundedTo(QSize(largestWindow, largestWindow)));
        widget->setParent(nullptr);
    } else {
        machine.stage().place(widget, values.boolean());
    }
    widget->setVisible(values.below(4) > 0);
}

void showOrHideWindow(WidgetMachine& machine, Values& values)
{
    machine.stage().window(values.boolean())->setVisible(values.below(4) > 0);
}

void deleteLater(WidgetMachine& machine)
{
    machine.widget()->deleteLater();
    turnEventLoop();
}

} // namespace

void addPlacement(WidgetMachine& machine)
{
    machine.add("show", 4, [&](Values&) { machine.widget()->show(); });
    machine.add("hide", 2, [&](Values&) { machine.widget()->hide(); });
    machine.add("resize", 4, [&](Values& v) { resize(*machine.widget(), v.size()); });
    machine.add("move", 1, [&](Values& v) {
        const QPoint position(v.below(700) - 100, v.below(600) - 100);
        machine.widget()->move(position);
    });
    machine.add("reparent", 2, [&](Values& v) { reparent(machine, v); });
    machine.add("showOrHideWindow", 1, [&](Values& v) { showOrHideWindow(machine, v); });
    machine.add("stack", 1, [&](Values& v) {
        v.boolean() ? machine.widget()->raise() : machine.widget()->lower();
    });
    machine.add("delete", 1, [&](Values&) { delete machine.widget(); });
    machine.add("deleteLater", 1, [&](Values&) { deleteLater(machine); });
    machine.add("replaceWindow", 1, [&](Values& v) { machine.stage().replaceWindow(v.boolean()); });
    machine.add("turn", 6, [](Values&) { turnEventLoop(); });
}

} // namespace soak
