#include "ReadOnlyValue.h"

#include "ValueText.h"

#include <QBoxLayout>
#include <QLabel>

ReadOnlyValue::ReadOnlyValue(QWidget* parent)
    : ValueEditor(parent)
    , m_label(new QLabel)
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    // A word that is too long, as some debug output is, does not make the whole list too wide.
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_label->setEnabled(false); // the look of what cannot be changed
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_label);
}

void ReadOnlyValue::setValue(const QVariant& value)
{
    m_label->setText(valueText(value));
}
