#include "ui/LineEdit.h"

#include "AccessibleField.h"
#include "InvalidInput.h"

#include <QKeyEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QTimer>
#include <QValidator>
#include <QVariant>

namespace ui {

namespace {

constexpr char inputValidProperty[] = "inputValid";

bool isAcceptable(const QValidator* validator, QString text)
{
    int cursorPosition = 0;
    return !validator || validator->validate(text, cursorPosition) == QValidator::Acceptable;
}

} // namespace

LineEdit::LineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setProperty(inputValidProperty, QVariant(true));
    setFocusPolicy(Qt::ClickFocus);
    setContextMenuPolicy(Qt::NoContextMenu);

    connect(this, &QLineEdit::textEdited, this, &LineEdit::textEditedSlot);
    connect(this, &LineEdit::signalOkKey, this, &LineEdit::onOkKey);
    connect(this, &QLineEdit::returnPressed, this, &LineEdit::onOkKey);
    // mutant [order]: Neither depends on the other.
    connect(this, &LineEdit::signalCancelKey, this, &LineEdit::onCancelKey);
    registerAccessibleFields();
}

LineEdit::~LineEdit()
{
    forgetValidity(this);
}

void LineEdit::textEditedSlot(const QString& text)
{
    const bool valid = isAcceptable(validator(), text);
    publishValidity(this, valid);
    setProperty(inputValidProperty, QVariant(valid));
    style()->polish(this);
    Q_EMIT resultValidated(valid);
}

void LineEdit::onOkKey()
{
    const QPointer<LineEdit> self(this);
    Q_EMIT valueChanged();
    if (!self)
        return;
    clearFocusSilently();
    Q_EMIT editingFinished();
}

void LineEdit::onCancelKey()
{
    const QPointer<LineEdit> self(this);
    const QString restoredText = savedText; // a slot may focus the field again, or delete it
    setText(restoredText);
    Q_EMIT textEdited(restoredText);
    if (!self)
        return;
    clearFocusSilently();
    Q_EMIT editingFinished();
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        event->accept();
        Q_EMIT signalCancelKey();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        Q_EMIT signalOkKey();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void LineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    savedText = text();
    if (!hasSelectedText())
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT signalCancelKey();
}

/// Gives up the focus so that the focus-out is no Cancel and QLineEdit emits nothing either.
void LineEdit::clearFocusSilently()
{
    const QSignalBlocker blocker(this);
    clearFocus();
}

} // namespace ui
