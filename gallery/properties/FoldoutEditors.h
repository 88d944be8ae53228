#pragma once

#include "ValueEditor.h"

#include <QMetaEnum>
#include <QVector>
#include <QWidget>

#include <array>

class BoolEditor;
class IntEditor;
class PartsForm;
class Switch;
namespace ui {
class KeypadLineEdit;
}
QT_BEGIN_NAMESPACE
class QBoxLayout;
class QComboBox;
class QFont;
class QFontComboBox;
class QFormLayout;
class QLabel;
class QSlider;
class QToolButton;
QT_END_NAMESPACE

/// An editor of a value with several parts: a button with a summary, which unfolds their editors.
class FoldoutEditor : public ValueEditor
{
    Q_OBJECT

public:
    explicit FoldoutEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

protected:
    const QVariant& value() const;

    /// The row that the summary stands in.
    QBoxLayout* header() const;

    virtual QString summary(const QVariant& value) const = 0;

    /// Makes the editors of the parts, at the first unfolding.
    virtual QWidget* makeBody() = 0;

    /// Shows \a value in the body, which exists.
    virtual void fillBody(const QVariant& value) = 0;

private:
    void unfold(bool open);

    QVariant m_value;
    QBoxLayout* m_header;
    QToolButton* m_button;
    QWidget* m_body;
};

/// The parts of a value, each with its name, below the summary of a FoldoutEditor.
class PartsForm : public QWidget
{
    Q_OBJECT

public:
    explicit PartsForm(QWidget* parent = nullptr);

    void addHeading(const QString& text);
    void addPart(QWidget* editor);
    void addPart(const QString& name, QWidget* editor);

private:
    QFormLayout* m_layout;
};

/// Edits the easing curve and the duration of a Style::Animation.
class AnimationEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit AnimationEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    void enterEasing(int index);
    void enterDuration(const QVariant& duration);

    QComboBox* m_easing;
    IntEditor* m_duration;
};

/// Edits a colour by name and by its red, green, blue and alpha.
class ColorEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit ColorEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    void enterName(const QString& name);
    void enterChannels();

    QLabel* m_swatch;
    ui::KeypadLineEdit* m_name;
    std::array<QSlider*, 4> m_channels;
};

/// A switch for every key of one bit; keys of several bits, such as masks, are left out.
class FlagsEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit FlagsEditor(const QMetaEnum& metaEnum, QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    struct Flag
    {
        QString key;
        uint bit;
        Switch* control;
    };
    QVector<Flag> m_flags;
};

/// Edits a font's family, size (in the unit that the font was given in), weight and slope.
class FontEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit FontEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    QFont shownFont() const;
    BoolEditor* addSwitch(PartsForm* form, const QString& label, void (QFont::*set)(bool));

    QFontComboBox* m_family;
    IntEditor* m_size;
    BoolEditor* m_bold;
    BoolEditor* m_italic;
    BoolEditor* m_underline;
};

/// Edits a QPoint, QSize or QRect by its numbers.
class TupleEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit TupleEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    void enterNumber(int index, int number);

    QVector<IntEditor*> m_editors;
};

/// Edits the colours of a QPalette that matter most, all groups alike.
class PaletteEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit PaletteEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    QVector<ColorEditor*> m_editors;
};

/// Edits the policies and the stretch factors of a QSizePolicy.
class SizePolicyEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit SizePolicyEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    QVector<ValueEditor*> m_editors;
};
