#pragma once

#include "ValueEditor.h"

#include <ui/keyboard/KeyboardType.h>

#include <QMetaEnum>
#include <QPair>
#include <QVector>

class Switch;
namespace ui {
class KeypadLineEdit;
}
QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
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
    Switch* m_switch;
};

/**
 * Edits a value by its text in a field with a keypad.
 *
 * While the user is typing, what else becomes of the value is not shown; it is afterwards.
 */
class FieldEditor : public ValueEditor
{
    Q_OBJECT

public:
    void setValue(const QVariant& value) override;

protected:
    FieldEditor(ui::keyboard::KeyboardType type, const QString& title, QWidget* parent);

    ui::KeypadLineEdit* field() const;
    const QVariant& value() const;

    virtual QString textOf(const QVariant& value) const = 0;

    /// Announces \a value, and shows what becomes of it.
    void enter(const QVariant& value);

private:
    bool isTyping() const;
    void showValue();

    ui::KeypadLineEdit* m_field;
    QVariant m_value;
    bool m_isEntering = false;
};

/// Edits an int or a double between a "-" and a "+" button. Typed digits count with OK.
class NumberEditor : public FieldEditor
{
    Q_OBJECT

protected:
    NumberEditor(ui::keyboard::KeyboardType type, const QString& title, QWidget* parent);

    virtual QVariant valueOf(const QString& text) const = 0;

    /// The value \a steps steps further.
    virtual QVariant stepped(int steps) const = 0;

private:
    void addStepButton(int steps);
};

class IntEditor : public NumberEditor
{
    Q_OBJECT

public:
    explicit IntEditor(QWidget* parent = nullptr);

protected:
    QString textOf(const QVariant& value) const override;
    QVariant valueOf(const QString& text) const override;
    QVariant stepped(int steps) const override;
};

class DoubleEditor : public NumberEditor
{
    Q_OBJECT

public:
    explicit DoubleEditor(QWidget* parent = nullptr);

protected:
    QString textOf(const QVariant& value) const override;
    QVariant valueOf(const QString& text) const override;
    QVariant stepped(int steps) const override;
};

/// Edits a text, which counts with every key.
class TextEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit TextEditor(QWidget* parent = nullptr);

    /// Shows dots in place of the characters.
    void hideText();

protected:
    QString textOf(const QVariant& value) const override;
};

/// Edits a list of texts, which semicolons separate. It counts with OK.
class TextListEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit TextListEditor(QWidget* parent = nullptr);

protected:
    QString textOf(const QVariant& value) const override;
};

/// Offers the keys of an enumeration. Values are ints; one without a key is shown as no choice.
class EnumEditor : public ValueEditor
{
    Q_OBJECT

public:
    using Choices = QVector<QPair<QString, int>>;

    explicit EnumEditor(const QMetaEnum& metaEnum, QWidget* parent = nullptr);
    explicit EnumEditor(const Choices& choices, QWidget* parent = nullptr);

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

    /// A combo box of the curves that their type alone defines; its data are the types' numbers.
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

    /// Shows dots in place of the characters.
    void hideText();

private:
    QLabel* m_label;
    bool m_isHidden = false;
};
