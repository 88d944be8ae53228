#pragma once

#include "ValueEditor.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
QT_END_NAMESPACE

class BoolEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit BoolEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;
    bool isNarrow() const override;

private:
    QCheckBox* m_box;
};
