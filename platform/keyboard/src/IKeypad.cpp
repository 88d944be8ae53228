#include "ui/keyboard/IKeypad.h"

#include "Keypad.h"
#include "KeypadLayout.h"

#include <QLocale>

namespace ui {
namespace keyboard {

IKeypad::IKeypad(QWidget* parent)
    : QWidget(parent)
{
}

IKeypad::~IKeypad() = default;

IKeypad* IKeypad::create(KeyboardType type, QWidget* parent)
{
    const QVector<KeyDescription> keys =
        KeypadLayout::keys(type, parent ? parent->locale() : QLocale());
    if (keys.isEmpty()) {
        qWarning("IKeypad::create: no keypad for the type %d", int(type));
        return nullptr;
    }
    return new Keypad(type, keys, parent);
}

} // namespace keyboard
} // namespace ui
