#pragma once

#include <QPointer>
#include <QVariant>
#include <QVector>
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

/// Properties of an object under a common heading that folds them away. Rows are made at the first
/// unfolding.
class PropertyGroup : public QWidget
{
    Q_OBJECT

public:
    PropertyGroup(const QString& title, QObject* target, const QVector<QByteArray>& names,
                  QWidget* parent = nullptr);

    QString title() const;
    const QVector<QByteArray>& names() const;

    bool isUnfolded() const;
    void setUnfolded(bool unfolded);

    /// Shows the rows alone whose name contains \a text, whatever its case, and no heading without
    /// any; every row if it is empty.
    void setFilter(const QString& text);

    /// Shows the values that the properties have now, unless folded away.
    void refresh();

Q_SIGNALS:
    /// The user has set a property.
    void edited();

private:
    void showRows(bool visible);
    void makeRows();
    void filterRows();

    QPointer<QObject> m_target;
    QVector<QByteArray> m_names;
    QToolButton* m_heading;
    QWidget* m_body;
    QVector<PropertyRow*> m_rows;
    QString m_filter;
};
