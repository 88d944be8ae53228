#include "SignalLog.h"

#include <ui/KeypadLineEdit.h>

#include <utility>

namespace test {

SignalLog::SignalLog(ui::LineEdit* edit)
{
    connect(edit, &ui::LineEdit::signalCancelKey, this,
            [this] { add(QStringLiteral("signalCancelKey")); });
    connect(edit, &ui::LineEdit::signalOkKey, this, [this] { add(QStringLiteral("signalOkKey")); });
    connect(edit, &ui::LineEdit::signalClicked, this,
            [this] { add(QStringLiteral("signalClicked")); });
    connect(edit, &ui::LineEdit::resultValidated, this, [this](bool valid) {
        add(QStringLiteral("resultValidated(%1)").arg(QVariant(valid).toString()));
    });
    connect(edit, &ui::LineEdit::valueChanged, this,
            [this] { add(QStringLiteral("valueChanged")); });
    connect(edit, &QLineEdit::editingFinished, this,
            [this] { add(QStringLiteral("editingFinished")); });
    connect(edit, &QLineEdit::returnPressed, this,
            [this] { add(QStringLiteral("returnPressed")); });
    connect(edit, &QLineEdit::textEdited, this,
            [this](const QString& text) { add(QStringLiteral("textEdited(%1)").arg(text)); });
}

SignalLog::SignalLog(ui::KeypadLineEdit* edit)
    : SignalLog(static_cast<ui::LineEdit*>(edit))
{
    connect(edit, &ui::KeypadLineEdit::startKeypad, this,
            [this] { add(QStringLiteral("startKeypad")); });
}

QStringList SignalLog::take()
{
    return std::exchange(m_entries, {});
}

void SignalLog::add(const QString& entry)
{
    m_entries.append(entry);
}

} // namespace test
