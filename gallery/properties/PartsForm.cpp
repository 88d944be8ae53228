#include "PartsForm.h"

#include "Touch.h"

#include <QFormLayout>
#include <QLabel>

PartsForm::PartsForm(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QFormLayout(this))
{
    m_layout->setContentsMargins(0, 2, 0, 0);
    m_layout->setSpacing(2);
    m_layout->setHorizontalSpacing(8);
}

void PartsForm::addPart(QWidget* editor)
{
    m_layout->addRow(editor);
}

void PartsForm::addPart(const QString& name, QWidget* editor)
{
    auto* label = new QLabel(name);
    label->setMinimumHeight(touch::fingerSize); // centred beside an editor of that height
    m_layout->addRow(label, editor);
}
