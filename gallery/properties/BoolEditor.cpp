#include "BoolEditor.h"

#include "Touch.h"

#include <QBoxLayout>
#include <QCheckBox>

BoolEditor::BoolEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(touch::makeCheckBox())
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box);
    connect(m_box, &QCheckBox::clicked, this, [this](bool on) { Q_EMIT edited(on); });
}

void BoolEditor::setValue(const QVariant& value)
{
    m_box->setChecked(value.toBool());
}

bool BoolEditor::isNarrow() const
{
    return true;
}
