#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class PropertyRow;
QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

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
