#include "IntEditor.h"

#include "StepButtons.h"

#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

IntEditor::IntEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(new QSpinBox)
{
    m_box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    layOutWithStepButtons(m_box, this);
    connect(m_box, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { Q_EMIT edited(value); });
}

void IntEditor::setValue(const QVariant& value)
{
    if (m_box->value() == value.toInt())
        return; // keeps digits that are being typed
    const QSignalBlocker blocker(m_box);
    m_box->setValue(value.toInt());
}
