#pragma once

#include "ValueEditor.h"

QT_BEGIN_NAMESPACE
class QSpinBox;
QT_END_NAMESPACE

class IntEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit IntEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

private:
    QSpinBox* m_box;
};
