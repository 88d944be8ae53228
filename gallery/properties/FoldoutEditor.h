#pragma once

#include "ValueEditor.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QFormLayout;
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
