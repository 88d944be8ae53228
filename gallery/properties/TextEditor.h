#pragma once

#include "ValueEditor.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

/// Edits a text, which counts with every key.
class TextEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit TextEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

private:
    QLineEdit* m_edit;
};
