#pragma once

#include "platform_keyboard_export.h"

#include <ui/keyboard/KeyboardType.h>

#include <QWidget>

namespace ui {
namespace keyboard {

/**
 * An on-screen keypad.
 *
 * Keys are delivered as key events to the keypad's parent widget, which passes them on to the
 * field being edited. OK and Cancel are signals. The keys lie as on a keyboard, in whatever
 * direction the language runs.
 */
class PLATFORM_KEYBOARD_EXPORT IKeypad : public QWidget
{
    Q_OBJECT

public:
    /// Makes a keypad with the layout \a type, owned by \a parent; null if there is no such layout.
    static IKeypad* create(KeyboardType type, QWidget* parent);

    ~IKeypad() override;

    /**
     * Shows or hides one \a section of the keypad, which changes its size hint.
     * A number that names no section of the layout is ignored.
     *
     * The sections of the text layout are 0: letters, 1: digits, 2: symbols; at first only the
     * letters are shown, and a key of the keypad exchanges them for the other two. The number
     * layouts have one section, 0: digits, sign and separator.
     */
    virtual void setSectionVisible(int section, bool visible) = 0;

public Q_SLOTS:
    /// Lets the user press OK (\a allowed) or not, as when the text is not acceptable.
    virtual void allowEntry(bool allowed) = 0;

Q_SIGNALS:
    void signalOk(); ///< The user pressed the OK key.
    void signalCancel(); ///< The user pressed the Cancel key.

protected:
    /// For the keypads of the library, which create() makes.
    explicit IKeypad(QWidget* parent = nullptr);
};

} // namespace keyboard
} // namespace ui
