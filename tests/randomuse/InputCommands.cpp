#include "WidgetModel.h"

#include <QApplication>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QWheelEvent>
#include <QWindow>

namespace test {

namespace {

void sendKey(const QPointer<QWindow>& window, Qt::Key key, Qt::KeyboardModifiers modifiers,
             const QString& text)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (window)
            qt_handleKeyEvent(window, type, key, modifiers, text);
    }
}

void pressKey(WidgetModel& model, Values& values)
{
    const auto key = values.oneOf({Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,
                                   Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                   Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                                   Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_F2, Qt::Key_Menu});
    const auto modifiers =
        values.oneOf({Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    const QString text = key == Qt::Key_Space ? QStringLiteral(" ") : QString();
    sendKey(model.widget()->window()->windowHandle(), key, modifiers, text);
}

void typeText(WidgetModel& model, Values& values)
{
    const QPointer<QWindow> window = model.widget()->window()->windowHandle();
    for (const QChar character : values.name())
        sendKey(window, Qt::Key(character.toUpper().unicode()), Qt::NoModifier, character);
}

void moveFocus(WidgetModel& model, Values& values)
{
    const auto reason =
        values.oneOf({Qt::MouseFocusReason, Qt::TabFocusReason, Qt::OtherFocusReason,
                      Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::ShortcutFocusReason});
    if (values.below(3) == 0)
        model.windows().neighbour(values.boolean(), values.boolean())->setFocus(reason);
    else
        model.widget()->setFocus(reason);
}

constexpr int longInterval = 1000; // milliseconds; two presses are two clicks then

/// Of the window system's clock, \a interval milliseconds after the last one.
int nextTime(int interval)
{
    static int time = 0;
    return time += interval;
}

/// What the window system reports; Qt finds the receiver, pop-ups included.
void send(QWindow* window, const QPoint& position, QEvent::Type type, Qt::MouseButton button,
          Values& values)
{
    const bool pressed = type == QEvent::MouseButtonPress;
    qt_handleMouseEvent(window, position, window->mapToGlobal(position),
                        pressed ? button : Qt::NoButton,
                        type == QEvent::MouseMove ? Qt::NoButton : button, type,
                        values.below(8) == 0 ? Qt::ControlModifier : Qt::NoModifier,
                        nextTime(values.oneOf({1, 500, longInterval})));
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

Target anywhere(WidgetModel& model, Values& values)
{
    QWidget* window = model.windows().window(values.boolean());
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

void tapTrembling(QWindow* window, const QPoint& position)
{
    const QPointer<QWindow> guard(window);
    const QPoint tremor(2, 2); // pixels; below any distance that starts a drag
    const auto report = [&](QEvent::Type type, const QPoint& place, Qt::MouseButtons pressed) {
        if (guard)
            qt_handleMouseEvent(guard, place, guard->mapToGlobal(place), pressed,
                                type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, type,
                                Qt::NoModifier, nextTime(longInterval));
        processEvents();
    };
    report(QEvent::MouseButtonPress, position, Qt::LeftButton);
    report(QEvent::MouseMove, position + tremor, Qt::LeftButton);
    report(QEvent::MouseButtonRelease, position + tremor, Qt::NoButton);
}

void addKeyboard(WidgetModel& model)
{
    model.add("key", 6, [&](Values& v) { pressKey(model, v); });
    model.add("type", 4, [&](Values& v) { typeText(model, v); });
    model.add("focus", 5, [&](Values& v) { moveFocus(model, v); });
    model.add("clearFocus", 2, [&](Values&) { model.widget()->clearFocus(); });
    model.add("activate", 3, [&](Values&) { model.widget()->activateWindow(); });
    model.add("activateOther", 1,
              [&](Values& v) { model.windows().window(v.boolean())->activateWindow(); });
}

void addPointer(WidgetModel& model)
{
    model.add("click", 6, [&](Values& v) { click(inside(*model.widget(), v), v); });
    model.add("clickAnywhere", 2, [&](Values& v) { click(anywhere(model, v), v); });
    model.add("mouse", 4, [&](Values& v) { sendOne(inside(*model.widget(), v), v); });
    model.add("mouseAnywhere", 2, [&](Values& v) { sendOne(anywhere(model, v), v); });
    model.add("wheel", 1, [&](Values& v) { turnWheel(*model.widget(), v); });
}

} // namespace test
