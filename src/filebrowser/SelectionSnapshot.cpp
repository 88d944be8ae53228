#include "SelectionSnapshot.h"

#include <QItemSelectionModel>
#include <QPair>
#include <QSet>

#include <algorithm>

namespace ui {

namespace {

/// A bit for each column from \a first to \a last; a file system has four.
quint64 columnBits(int first, int last)
{
    constexpr quint64 all = ~quint64(0);
    constexpr int maxColumn = 63;
    return (all << first) & (all >> (maxColumn - qMin(last, maxColumn)));
}

} // namespace

SelectionSnapshot::SelectionSnapshot(const QItemSelectionModel* selectionModel,
                                     const QAbstractItemModel* model)
    : m_model(model)
{
    if (!selectionModel || !model || selectionModel->model() != model)
        return;
    for (const QItemSelectionRange& range : selectionModel->selection()) {
        const QModelIndex& first = range.topLeft();
        const QModelIndex& last = range.bottomRight();
        if (first.isValid()) // range.isValid() compares parents, which take time to find
            m_ranges.append({first.parent(), first.row(), last.row(),
                             columnBits(first.column(), last.column())});
    }
}

QModelIndexList SelectionSnapshot::rows() const
{
    QModelIndexList result;
    QSet<QPair<QModelIndex, int>> seen;
    const bool split = rowsAreSplit();
    for (const Range& range : m_ranges) {
        const quint64 all = allColumns(range.parent);
        const bool whole = range.columns == all;
        if (!whole && !split)
            // mutant [dropped]: Only takes longer.
            continue;
        for (int row = range.top; row <= range.bottom; ++row) {
            const QPair<QModelIndex, int> key(range.parent, row);
            if ((whole || columnsOf(range.parent, row) == all) && !seen.contains(key)) {
                // mutant [order]: One does not depend on the other.
                seen.insert(key);
                result.append(m_model->index(row, 0, range.parent));
            }
        }
    }
    return result;
}

bool SelectionSnapshot::contains(const QModelIndex& index) const
{
    return columnsOf(index.parent(), index.row()) & columnBits(index.column(), index.column());
}

bool SelectionSnapshot::containsRow(const QModelIndex& index) const
{
    return columnsOf(index.parent(), index.row()) == allColumns(index.parent());
}

quint64 SelectionSnapshot::allColumns(const QModelIndex& parent) const
{
    return columnBits(0, m_model->columnCount(parent) - 1);
}

quint64 SelectionSnapshot::columnsOf(const QModelIndex& parent, int row) const
{
    quint64 columns = 0;
    for (const Range& range : m_ranges) {
        if (range.top <= row && row <= range.bottom && range.parent == parent)
            columns |= range.columns; // cppcheck-suppress useStlAlgorithm ; longer with it
    }
    return columns;
}

/// Whether several ranges may make up a row, which takes one with its first column but not all.
bool SelectionSnapshot::rowsAreSplit() const
{
    return std::any_of(m_ranges.cbegin(), m_ranges.cend(), [this](const Range& range) {
        // mutant [&& -> ||; 0 -> 1]: To say so of more rows only takes longer.
        return (range.columns & columnBits(0, 0)) && range.columns != allColumns(range.parent);
    });
}

} // namespace ui
