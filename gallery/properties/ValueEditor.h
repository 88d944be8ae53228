#pragma once

#include <QString>
#include <QVariant>
#include <QWidget>

/**
 * Shows a value of one type and lets the user edit it.
 *
 * An editor holds no truth of its own: it announces what was entered, and shows what it is told.
 */
class ValueEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ValueEditor(QWidget* parent = nullptr);

    /// Shows \a value, without edited(). Showing the same value again disturbs no editing.
    virtual void setValue(const QVariant& value) = 0;

    /// Whether the editor is small enough to stand beside the name of what it edits.
    virtual bool isNarrow() const;

Q_SIGNALS:
    void edited(const QVariant& value);
};

/// An editor fit for the property \a name of \a object, or a read-only display if it cannot be
/// edited.
ValueEditor* makeValueEditor(const QObject& object, const QByteArray& name);

/// A short text for a value of any type.
QString valueText(const QVariant& value);
