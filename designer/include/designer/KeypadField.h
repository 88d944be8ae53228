#pragma once

#include <ui/KeypadLineEdit.h>

/**
 * A ui::KeypadLineEdit as forms make it.
 *
 * Code made by uic passes a parent and nothing else, while a ui::KeypadLineEdit wants to be told its
 * keypad as well. This one takes the keyboard library's first layout; for another one, derive a class
 * that passes it and promote the field to that class in Designer:
 *
 * @code
 * class NameField : public KeypadField
 * {
 * public:
 *     explicit NameField(QWidget* parent = nullptr)
 *         : KeypadField(parent, ui::keyboard::KeyboardType::Text)
 *     {
 *     }
 * };
 * @endcode
 */
class KeypadField : public ui::KeypadLineEdit
{
public:
    /// Makes a field owned by \a parent, with the keypad layout \a type.
    explicit KeypadField(QWidget* parent = nullptr,
                         ui::keyboard::KeyboardType type = ui::keyboard::KeyboardType())
        : KeypadLineEdit(parent, type)
    {
    }
};
