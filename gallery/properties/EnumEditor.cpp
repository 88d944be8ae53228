#include "EnumEditor.h"

#include "Touch.h"

#include <QBoxLayout>
#include <QComboBox>

EnumEditor::EnumEditor(const QMetaEnum& metaEnum, QWidget* parent)
    : ValueEditor(parent)
    , m_box(touch::makeComboBox())
{
    for (int i = 0; i < metaEnum.keyCount(); ++i)
        m_box->addItem(QString::fromLatin1(metaEnum.key(i)), metaEnum.value(i));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT edited(m_box->itemData(index)); });
}

void EnumEditor::setValue(const QVariant& value)
{
    m_box->setCurrentIndex(m_box->findData(value.toInt()));
}
