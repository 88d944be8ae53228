#include "TextEditor.h"

#include "Touch.h"

#include <QBoxLayout>
#include <QLineEdit>

TextEditor::TextEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_edit(new QLineEdit)
{
    m_edit->setMinimumHeight(touch::fingerSize);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_edit);
    connect(m_edit, &QLineEdit::textEdited, this,
            [this](const QString& text) { Q_EMIT edited(text); });
}

void TextEditor::setValue(const QVariant& value)
{
    if (m_edit->text() != value.toString()) // keeps the cursor where it is
        m_edit->setText(value.toString());
}
