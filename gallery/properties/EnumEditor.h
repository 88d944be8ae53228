#pragma once

#include "ValueEditor.h"

#include <QMetaEnum>

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

/// Offers the keys of an enumeration. Values are ints; one without a key is shown as no choice.
class EnumEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit EnumEditor(const QMetaEnum& metaEnum, QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

private:
    QComboBox* m_box;
};
