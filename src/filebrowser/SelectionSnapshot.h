#pragma once

#include <QModelIndexList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QItemSelectionModel;
QT_END_NAMESPACE

namespace ui {

/**
 * The ranges that a selection model holds, read once.
 *
 * QItemSelectionModel::selectedRows() asks every range about every row, and a range asks the model
 * for its parent each time. A selection of a thousand rows from which single cells have been taken
 * has about as many ranges, and takes a tenth of a second then.
 */
class SelectionSnapshot
{
public:
    /// Empty if one is null, or \a selectionModel has another model: a program may give a view its
    /// own.
    SelectionSnapshot(const QItemSelectionModel* selectionModel, const QAbstractItemModel* model);

    /// The indexes in column 0 of the rows selected in all columns: those of selectedRows(), in its
    /// order.
    QModelIndexList rows() const;

    /// Whether the cell \a index is selected.
    bool contains(const QModelIndex& index) const;

    /// Whether the row of \a index is selected in all columns.
    bool containsRow(const QModelIndex& index) const;

private:
    struct Range
    {
        QModelIndex parent;
        int top;
        int bottom;
        quint64 columns; ///< One bit each.
    };

    quint64 allColumns(const QModelIndex& parent) const;
    quint64 columnsOf(const QModelIndex& parent, int row) const;
    bool rowsAreSplit() const;

    const QAbstractItemModel* m_model;
    QVector<Range> m_ranges;
};

} // namespace ui
