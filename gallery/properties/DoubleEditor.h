#pragma once

#include "ValueEditor.h"

QT_BEGIN_NAMESPACE
class QDoubleSpinBox;
QT_END_NAMESPACE

class DoubleEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit DoubleEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

private:
    QDoubleSpinBox* m_box;
};
