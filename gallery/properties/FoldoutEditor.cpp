#include "FoldoutEditor.h"

#include "Touch.h"

#include <QBoxLayout>
#include <QToolButton>

FoldoutEditor::FoldoutEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_header(new QHBoxLayout)
    , m_button(touch::makeFoldButton())
    , m_body(nullptr)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(m_header);
    m_button->setAutoRaise(false);
    m_header->addWidget(m_button, 1);
    connect(m_button, &QToolButton::toggled, this, &FoldoutEditor::unfold);
}

void FoldoutEditor::setValue(const QVariant& value)
{
    m_value = value;
    m_button->setText(summary(value));
    if (m_body)
        fillBody(value);
}

const QVariant& FoldoutEditor::value() const
{
    return m_value;
}

QBoxLayout* FoldoutEditor::header() const
{
    return m_header;
}

void FoldoutEditor::unfold(bool open)
{
    if (!m_body) {
        m_body = makeBody();
        layout()->addWidget(m_body);
        fillBody(m_value);
    }
    m_body->setVisible(open);
}
