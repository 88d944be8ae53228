#include "LineEditModel.h"

#include "Machine.h"

#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

#include <QFocusEvent>
#include <QValidator>

namespace soak {

LineEditModel::LineEditModel(ui::LineEdit* field, Machine* machine)
    : QObject(field)
    , m_field(field)
    , m_machine(machine)
{
    field->installEventFilter(this);
    connect(field, &ui::LineEdit::resultValidated, this, &LineEditModel::checkVerdict);
    connect(field, &ui::LineEdit::signalCancelKey, this, &LineEditModel::checkRestored);
}

void LineEditModel::setHasKeypad()
{
    m_hasKeypad = true;
}

void LineEditModel::check()
{
    m_machine->compare("inputValid", m_field->property("inputValid"), QVariant(m_valid));
    m_machine->compare("focus policy", m_field->focusPolicy(), Qt::ClickFocus);
}

bool LineEditModel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason || !m_hasKeypad)
            m_saved = m_field->text();
    }
    return false;
}

void LineEditModel::checkVerdict(bool valid)
{
    m_valid = valid;
    // A Cancel asks about the text that was saved, even if the field can no longer hold all of it.
    const bool cut = m_saved.size() > m_field->maxLength();
    m_machine->expect(valid == isAcceptable(m_field->text())
                          || (cut && valid == isAcceptable(m_saved)),
                      "the verdict is the validator's");
    m_machine->compare("inputValid in the signal", m_field->property("inputValid"),
                       QVariant(valid));
}

bool LineEditModel::isAcceptable(QString text) const
{
    int position = 0;
    const QValidator* validator = m_field->validator();
    return !validator || validator->validate(text, position) == QValidator::Acceptable;
}

/// The field's own reaction has run already.
void LineEditModel::checkRestored()
{
    m_machine->compare("restored text", m_field->text(), m_saved.left(m_field->maxLength()));
    m_machine->expect(!m_field->hasFocus() || isKeypadUp(), "a Cancel gives up the focus");
}

bool LineEditModel::isKeypadUp() const
{
    const auto* popup = m_field->findChild<ui::KeypadPopup*>();
    return m_hasKeypad && popup && popup->isVisible();
}

} // namespace soak
