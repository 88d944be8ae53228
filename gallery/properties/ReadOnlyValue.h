#pragma once

#include "ValueEditor.h"

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

/// Shows a value that cannot be edited as text.
class ReadOnlyValue : public ValueEditor
{
    Q_OBJECT

public:
    explicit ReadOnlyValue(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

private:
    QLabel* m_label;
};
