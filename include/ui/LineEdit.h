#pragma once

#include "platform_widgets_export.h"

#include <QLineEdit>

namespace ui {

/**
 * A single-line text field that commits on OK and reverts on Cancel.
 *
 * The text that the field holds when it gains the focus is kept. OK (Return, Enter or the signal
 * signalOkKey()) ends editing with the new text; Cancel (Escape, the signal signalCancelKey() or
 * any loss of the focus) ends it with the kept text. Every edit by the user, and every Cancel, runs
 * the field's validator and publishes the result as the dynamic property "inputValid" and as the
 * signal resultValidated().
 *
 * \image html LineEdit.png "A field with a QIntValidator from 1 to 65535"
 *
 * \snippet LineEdit.cpp LineEdit
 *
 * An application's style sheet can colour text that is not acceptable. The dynamic property
 * "inputValid" is true from construction on and is not reset when the focus changes. setText() does
 * not touch it; to have the text validated that it sets:
 *
 * \snippet LineEdit.cpp setText
 *
 * A screen reader hears of it as well: after an edit that is not acceptable, what it is told as the
 * field's description begins with "Invalid input", before what the application says there.
 * QWidget::accessibleDescription() stays as the application wrote it.
 *
 * \anchor looks_LineEdit
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | QPalette::Base, QPalette::Text | field and text, as of any QLineEdit |
 * | QPalette::Highlight and its text | what is selected, which is all of it when editing begins |
 * | `ui--LineEdit` | every field of this class and of those derived from it |
 * | `[inputValid="false"]` | a field whose text is not acceptable |
 *
 * The field takes the focus from a click or tap only and opens no context menu. Its nearest
 * neighbour is QLineEdit, which keeps what was typed when it loses the focus and which lets the
 * validator refuse Return and Enter: here OK does not ask the validator.
 *
 * The field emits, in this order:
 *  - OK: signalOkKey() (from the keyboard), valueChanged(), editingFinished();
 *  - Cancel: signalCancelKey(), textEdited() with the kept text, resultValidated(),
 *    editingFinished(); when the focus goes to another widget, QLineEdit may have emitted
 *    editingFinished() once before.
 *
 * The field reacts to its own signals first: a slot that an application connects to signalOkKey(),
 * signalCancelKey() or textEdited() runs after what that signal sets off: \ref textfields shows it.
 *
 * A slot of one of these signals may delete the field, and the rest of the sequence is dropped.
 * Only while Qt itself handles typed text or a change of the focus does a slot have to use
 * deleteLater(), as with any QLineEdit.
 */
class PLATFORM_WIDGETS_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty field, valid until the first edit, owned by \a parent.
    explicit LineEdit(QWidget* parent = nullptr);
    ~LineEdit() override;

Q_SIGNALS:
    /// Escape was pressed or the focus is lost; emitted by an application, it cancels the edit.
    void signalCancelKey();

    /// Return or Enter was pressed; emitted by an application, it commits the text.
    void signalOkKey();

    /// Never emitted by the library: for applications to emit and to connect.
    void signalClicked();

    /// The text has been validated, with the result: true if it is acceptable.
    void resultValidated(bool valid);

    /// An OK has committed the text; not emitted by a Cancel.
    void valueChanged();

protected Q_SLOTS:
    /**
     * Validates \a text, which the user has edited or a Cancel has restored: writes the result to
     * the property "inputValid", polishes the field again so that a style sheet can react, and
     * emits resultValidated().
     *
     * The text is valid if the validator calls it QValidator::Acceptable, or if there is no
     * validator.
     */
    virtual void textEditedSlot(const QString& text);

    /// Commits: emits valueChanged(), gives up the focus without a Cancel, emits editingFinished().
    void onOkKey();

    /// Reverts to the kept text, validates it, gives up the focus and emits editingFinished().
    void onCancelKey();

protected:
    /// Turns Escape, Return and Enter into signals.
    void keyPressEvent(QKeyEvent* event) override;
    /// Keeps the text for a Cancel; selects all of it in the next turn if nothing is selected.
    void focusInEvent(QFocusEvent* event) override;
    /// Cancels the edit.
    void focusOutEvent(QFocusEvent* event) override;

private:
    PLATFORM_WIDGETS_NO_EXPORT void clearFocusSilently();

    QString savedText; // what a Cancel restores: the text at the last focus-in
};

} // namespace ui
