#pragma once

namespace ui {
namespace keyboard {

/// The layouts that the keypad factory offers.
enum class KeyboardType {
    Integer, ///< Digits, sign and backspace.
    Decimal, ///< Digits, the locale's decimal separator, sign and backspace.
    Text, ///< Letters with shift, digits, symbols, space and backspace.
};

} // namespace keyboard
} // namespace ui
