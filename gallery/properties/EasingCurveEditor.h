#pragma once

#include "ValueEditor.h"

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

/// Chooses a QEasingCurve by its type.
class EasingCurveEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit EasingCurveEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

    /// A combo box of the curves that their type alone defines; an item's data is the type's number.
    static QComboBox* makeTypeBox();

private:
    QComboBox* m_box;
};
