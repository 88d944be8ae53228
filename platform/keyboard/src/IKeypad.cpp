#include "ui/keyboard/IKeypad.h"

namespace ui {
namespace keyboard {

IKeypad::IKeypad(QWidget* parent)
    : QWidget(parent)
{
}

IKeypad::~IKeypad() = default;

IKeypad* IKeypad::create(KeyboardType, QWidget*)
{
    return nullptr;
}

} // namespace keyboard
} // namespace ui
