#pragma once

#include <QPointer>
#include <QVariant>
#include <QWidget>

class ValueEditor;
QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

/// A property of an object: its name, an editor of its value, and a button that takes edits back.
class PropertyRow : public QWidget
{
    Q_OBJECT

public:
    PropertyRow(QObject* target, const QByteArray& name, QWidget* parent = nullptr);

    const QByteArray& name() const;
    ValueEditor* editor() const;

    /// Shows the value that the property has now.
    void refresh();

Q_SIGNALS:
    /// The user has set the property, and the row shows what has come of it.
    void edited();

private:
    void layOut();
    void edit(const QVariant& value);
    void reset();
    void write(const QVariant& value);

    QPointer<QObject> m_target;
    QByteArray m_name;
    ValueEditor* m_editor;
    QToolButton* m_resetButton;
    QVariant m_shown;
};
