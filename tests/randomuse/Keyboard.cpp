#include "WidgetMachine.h"

#include <QtTest/qtestkeyboard.h>
#include <QWindow>

namespace soak {

namespace {

void sendKey(const QPointer<QWindow>& window, Qt::Key key, Qt::KeyboardModifiers modifiers,
             const QString& text)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (window)
            qt_handleKeyEvent(window, type, key, modifiers, text);
    }
}

void pressKey(WidgetMachine& machine, Values& values)
{
    const auto key = values.oneOf({Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,
                                   Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                   Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                                   Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_F2, Qt::Key_Menu});
    const auto modifiers =
        values.oneOf({Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    const QString text = key == Qt::Key_Space ? QStringLiteral(" ") : QString();
    sendKey(machine.widget()->window()->windowHandle(), key, modifiers, text);
}

void typeText(WidgetMachine& machine, Values& values)
{
    const QPointer<QWindow> window = machine.widget()->window()->windowHandle();
    for (const QChar character : values.name())
        sendKey(window, Qt::Key(character.toUpper().unicode()), Qt::NoModifier, character);
}

void moveFocus(WidgetMachine& machine, Values& values)
{
    const auto reason =
        values.oneOf({Qt::MouseFocusReason, Qt::TabFocusReason, Qt::OtherFocusReason,
                      Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::ShortcutFocusReason});
    if (values.below(3) == 0)
        machine.stage().neighbour(values.boolean(), values.boolean())->setFocus(reason);
    else
        machine.widget()->setFocus(reason);
}

} // namespace

void addKeyboard(WidgetMachine& machine)
{
    machine.add("key", 6, [&](Values& v) { pressKey(machine, v); });
    machine.add("type", 4, [&](Values& v) { typeText(machine, v); });
    machine.add("focus", 5, [&](Values& v) { moveFocus(machine, v); });
    machine.add("clearFocus", 2, [&](Values&) { machine.widget()->clearFocus(); });
    machine.add("activate", 3, [&](Values&) { machine.widget()->activateWindow(); });
    machine.add("activateOther", 1,
                [&](Values& v) { machine.stage().window(v.boolean())->activateWindow(); });
}

} // namespace soak
