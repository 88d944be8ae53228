#pragma once

#include <QPointer>
#include <QVariant>
#include <QWidget>

class ValueEditor;

/// A property of an object: its name, and an editor of its value.
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
    void write(const QVariant& value);

    QPointer<QObject> m_target;
    QByteArray m_name;
    ValueEditor* m_editor;
    QVariant m_shown;
};
