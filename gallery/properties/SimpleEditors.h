#pragma once

#include "ValueEditor.h"

#include <QMetaEnum>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QSpinBox;
QT_END_NAMESPACE

/// Edits a bool by a switch.
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

/// Edits an int; typed digits count once the editing is finished.
class IntEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit IntEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

private:
    QSpinBox* m_box;
};

/// Edits a double; typed digits count once the editing is finished.
class DoubleEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit DoubleEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

private:
    QDoubleSpinBox* m_box;
};

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

/// Chooses a QEasingCurve by its type.
class EasingCurveEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit EasingCurveEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

    /// A combo box of the curves that their type alone defines; an item's data is the type's
    /// number.
    static QComboBox* makeTypeBox();

private:
    QComboBox* m_box;
};

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
