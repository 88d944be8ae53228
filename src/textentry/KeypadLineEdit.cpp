#include "ui/KeypadLineEdit.h"

#include "ui/KeypadPopup.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>

namespace ui {

KeypadLineEdit::KeypadLineEdit(QWidget* parent, ui::keyboard::KeyboardType type)
    : LineEdit(parent)
    , keyboardType(type)
{
}

KeypadLineEdit::~KeypadLineEdit()
{
    if (!popup)
        return;
    // Qt hands the focus back to the field, which then cancels: nobody is to hear of it any more,
    // and no slot is to delete the field once more.
    const QSignalBlocker blocker(this);
    // mutant [order]: Hiding makes the pop-up send nothing that the field is connected to.
    // mutant [dropped]: Keeps the pop-up, which dies with the field, from writing to a part of the
    // field that is dead already: no test sees that.
    popup->disconnect(this);
    popup->hide();
}

void KeypadLineEdit::setMaxLength(int length)
{
    const int selectedFrom = selectionStart();
    const int selectedLength = selectedText().length();
    LineEdit::setMaxLength(length);
    // A start beyond the shortened text would only make Qt complain.
    // mutant [<= -> <]: At the very end of the text nothing gets selected.
    if (selectedLength > 0 && selectedFrom <= text().length())
        setSelection(selectedFrom, selectedLength);
}

KeypadPopup* KeypadLineEdit::keypad() const
{
    return popup;
}

void KeypadLineEdit::showKeypad()
{
    if (!popup)
        createPopup();
    if (!popup->isVisible())
        QTimer::singleShot(0, this, &KeypadLineEdit::openPopup);
}

void KeypadLineEdit::hideKeypad()
{
    if (!popup || !popup->isVisible())
        return;
    QTimer::singleShot(0, this, [this] {
        if (popup)
            popup->hide();
    });
}

void KeypadLineEdit::onOkKey()
{
    hideKeypad();
    LineEdit::onOkKey();
}

void KeypadLineEdit::onCancelKey()
{
    hideKeypad();
    LineEdit::onCancelKey();
}

void KeypadLineEdit::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::PopupFocusReason) {
        clearFocus();
        return;
    }
    showKeypad();
    LineEdit::focusInEvent(event);
}

void KeypadLineEdit::focusOutEvent(QFocusEvent* event)
{
    const QPointer<KeypadLineEdit> self(this);
    const Qt::FocusReason reason = event->reason();
    LineEdit::focusOutEvent(event);
    if (!self)
        // mutant [dropped]: The sanitizers notice what is done with a deleted field.
        return;
    hideKeypad();
    const QWidget* activePopup = QApplication::activePopupWidget();
    if (reason == Qt::PopupFocusReason && activePopup && activePopup->parent() == this)
        Q_EMIT editingFinished();
}

void KeypadLineEdit::createPopup()
{
    // mutant [sign; 1 -> 0; 1 -> 2]: The last argument is ignored.
    popup = new KeypadPopup(this, QString(), keyboardType, -1);
    connect(popup, &KeypadPopup::signalCancel, this, &KeypadLineEdit::onCancelKey);
    connect(popup, &KeypadPopup::signalOk, this, &KeypadLineEdit::onOkKey);
    connect(popup, &QObject::destroyed, this, [this] { popup = nullptr; });
}

/// Shows the pop-up once, however many requests have been scheduled in the same turn.
void KeypadLineEdit::openPopup()
{
    if (!popup || popup->isVisible())
        return;
    popup->locatePopup();
    popup->show();
    Q_EMIT startKeypad();
}

} // namespace ui
