#include "DoubleEditor.h"

#include "StepButtons.h"

#include <QDoubleSpinBox>
#include <QSignalBlocker>

namespace {

// Most doubles of a widget are fractions from 0 to 1.
constexpr double step = 0.05;
constexpr int decimals = 3;

/// The largest magnitude of which the spin box can show every digit.
constexpr double limit = 1e12;

} // namespace

DoubleEditor::DoubleEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(new QDoubleSpinBox)
{
    m_box->setRange(-limit, limit);
    m_box->setDecimals(decimals);
    m_box->setSingleStep(step);
    layOutWithStepButtons(m_box, this);
    connect(m_box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double value) { Q_EMIT edited(value); });
}

void DoubleEditor::setValue(const QVariant& value)
{
    if (m_box->textFromValue(m_box->value()) == m_box->textFromValue(value.toDouble()))
        return; // keeps digits that are being typed
    const QSignalBlocker blocker(m_box);
    m_box->setValue(value.toDouble());
}
