#pragma once

#include "platform_widgets_export.h"

#include <ui/keyboard/KeyboardType.h>
#include <ui/LineEdit.h>

namespace ui {

class KeypadPopup;

/**
 * A ui::LineEdit that opens the device's on-screen keypad while it is being edited.
 *
 * When the field gains the focus, a ui::KeypadPopup opens beside it. The keypad's OK and Cancel end
 * the edit as Return and Escape do; a tap outside both closes the pop-up and reverts the text, and
 * so does hiding the field. The pop-up is made on first use and serves the field for its whole
 * life.
 *
 * \image html KeypadLineEdit.png "A field for a number, at rest and with its keypad"
 *
 * \snippet KeypadLineEdit.cpp KeypadLineEdit
 *
 * In an area that is dragged, a field needs more: see \ref keypads_area.
 *
 * \anchor looks_KeypadLineEdit
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | palette roles | as of ui::LineEdit |
 * | `ui--KeypadLineEdit` | fields with a keypad; `ui--LineEdit` selects them too |
 * | `[inputValid="false"]` | as of \ref looks_LineEdit "ui::LineEdit" |
 * | `ui--KeypadPopup` | its pop-up: see \ref looks_KeypadPopup "ui::KeypadPopup" |
 *
 * \anchor properties_KeypadLineEdit
 * \par Properties
 * | Property | Getter | Setter | Default | In a style sheet |
 * |---|---|---|---|---|
 * | \c text | text() | setText() | empty | `qproperty-text` |
 *
 * The pop-up is always shown and hidden one turn of the event loop after the request. It leaves the
 * focus with the field; focus that comes back because a pop-up was closed is given up at once. The
 * nearest neighbour in Qt is a QLineEdit with an input method, whose panel is not tied to one
 * field.
 *
 * How to move on from one field to the next, and what to know of completers, of fields in pop-ups
 * and of fields in a QGraphicsProxyWidget, tells \ref textfields.
 */
class PLATFORM_WIDGETS_EXPORT KeypadLineEdit : public LineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /**
     * A field owned by \a parent, with the keypad layout \a type. Forms, which pass a parent and
     * nothing else, get the layout that the keyboard library lists first.
     */
    explicit KeypadLineEdit(QWidget* parent,
                            ui::keyboard::KeyboardType type = ui::keyboard::KeyboardType());

    /// Hides the pop-up and deletes it; an edit in progress is dropped without a signal.
    ~KeypadLineEdit() override;

    /**
     * Sets the maximum length of the text to \a length characters, 32767 by default, as
     * QLineEdit::setMaxLength() does, but keeps what was selected, as far as the shortened text
     * still holds it.
     */
    virtual void setMaxLength(int length);

    /// The pop-up, owned by the field; null until the first showKeypad().
    KeypadPopup* keypad() const;

    /// Opens the pop-up in the next turn of the event loop; does nothing if it is visible already.
    void showKeypad();

    /// Hides the pop-up, if it is visible now, in the next turn of the event loop.
    void hideKeypad();

Q_SIGNALS:
    /// The pop-up has just been shown.
    void startKeypad();

protected Q_SLOTS:
    // These hide the functions of the base class, which Return, Enter and Escape still reach.
    void onOkKey(); ///< The keypad's OK: hides the keypad and commits.
    void onCancelKey(); ///< The keypad's Cancel: hides the keypad and reverts.

protected:
    /// Opens the keypad, unless a closing pop-up gave the focus back.
    void focusInEvent(QFocusEvent* event) override;
    /// Cancels the edit and hides the keypad.
    void focusOutEvent(QFocusEvent* event) override;

private:
    PLATFORM_WIDGETS_NO_EXPORT void createPopup();
    PLATFORM_WIDGETS_NO_EXPORT void openPopup();

    ui::keyboard::KeyboardType keyboardType;
    KeypadPopup* popup = nullptr;
};

} // namespace ui
