#include "WidgetMachine.h"

#include <QApplication>
#include <QtTest/qtestmouse.h>
#include <QWheelEvent>
#include <QWindow>

namespace soak {

namespace {

/// Milliseconds; so long that two presses are two clicks mostly.
int nextTime(Values& values)
{
    static int time = 0;
    return time += values.oneOf({1, 500, 1000});
}

/// What the window system reports; Qt finds the receiver, pop-ups included.
void send(QWindow* window, const QPoint& position, QEvent::Type type, Qt::MouseButton button,
          Values& values)
{
    const bool pressed = type == QEvent::MouseButtonPress;
    qt_handleMouseEvent(
        window, position, window->mapToGlobal(position), pressed ? button : Qt::NoButton,
        type == QEvent::MouseMove ? Qt::NoButton : button, type,
        values.below(8) == 0 ? Qt::ControlModifier : Qt::NoModifier, nextTime(values));
}

struct Target
{
    QPointer<QWindow> window;
    QPoint position;
};

Target inside(QWidget& widget, Values& values)
{
    const QPoint position = values.pointIn(widget.size().boundedTo(QSize(600, 500)));
    return {widget.window()->windowHandle(), widget.mapTo(widget.window(), position)};
}

Target anywhere(WidgetMachine& machine, Values& values)
{
    QWidget* window = machine.stage().window(values.boolean());
    return {window->windowHandle(), values.pointIn(window->size())};
}

void click(const Target& target, Values& values)
{
    const auto button = values.below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    if (target.window)
        send(target.window, target.position, QEvent::MouseButtonPress, button, values);
    if (target.window)
        send(target.window, target.position, QEvent::MouseButtonRelease, button, values);
}

void sendOne(const Target& target, Values& values)
{
    const auto type =
        values.oneOf({QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove});
    if (target.window)
        send(target.window, target.position, type, Qt::LeftButton, values);
}

void turnWheel(QWidget& widget, Values& values)
{
    const QPoint angle(0, values.oneOf({-120, -1, 1, 120, 12000}));
    const QPointF position = values.pointIn(widget.size());
    QWheelEvent event(position, widget.mapToGlobal(position.toPoint()), QPoint(), angle,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

void addPointer(WidgetMachine& machine)
{
    machine.add("click", 6, [&](Values& v) { click(inside(*machine.widget(), v), v); });
    machine.add("clickAnywhere", 2, [&](Values& v) { click(anywhere(machine, v), v); });
    machine.add("mouse", 4, [&](Values& v) { sendOne(inside(*machine.widget(), v), v); });
    machine.add("mouseAnywhere", 2, [&](Values& v) { sendOne(anywhere(machine, v), v); });
    machine.add("wheel", 1, [&](Values& v) { turnWheel(*machine.widget(), v); });
}

} // namespace soak
