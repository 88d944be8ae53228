#pragma once

#include <QHash>
#include <QModelIndexList>
#include <QPair>
#include <QVector>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QItemSelectionModel;
class QItemSelectionRange;
QT_END_NAMESPACE

namespace ui {

/**
 * The rows that a selection model holds, read once.
 *
 * QItemSelectionModel::selectedRows() asks every range about every row. A selection of a thousand
 * rows from which single cells have been taken has about as many ranges, and takes a tenth of a
 * second then. Here each range and each row is visited once.
 */
class SelectionSnapshot
{
public:
    /// Empty if one is null, or \a selectionModel has another model: a program may give a view its own.
    SelectionSnapshot(const QItemSelectionModel* selectionModel, const QAbstractItemModel* model);

    /// The indexes in column 0 of the rows selected in all columns: those of selectedRows(), in its order.
    QModelIndexList rows() const;

    /// Whether the cell in column 0 of the row of \a index is selected.
    bool contains(const QModelIndex& index) const;

private:
    using Row = QPair<QModelIndex, int>; ///< The parent and the row below it.

    void add(const QItemSelectionRange& range);

    const QAbstractItemModel* m_model;
    QVector<Row> m_rows; ///< In the order of the ranges.
    QHash<Row, quint64> m_columns; ///< The selected columns of each row, one bit each.
};

} // namespace ui
