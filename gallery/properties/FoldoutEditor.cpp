#include "FoldoutEditor.h"

#include "Touch.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QLabel>
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

PartsForm::PartsForm(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QFormLayout(this))
{
    m_layout->setContentsMargins(0, 2, 0, 0);
    m_layout->setSpacing(2);
    m_layout->setHorizontalSpacing(8);
}

void PartsForm::addHeading(const QString& text)
{
    m_layout->addRow(touch::makeLabel(text));
}

void PartsForm::addPart(QWidget* editor)
{
    m_layout->addRow(editor);
}

void PartsForm::addPart(const QString& name, QWidget* editor)
{
    QLabel* label = touch::makeLabel(name);
    label->setMinimumHeight(touch::targetSize); // centred beside an editor of that height
    m_layout->addRow(label, editor);
}
