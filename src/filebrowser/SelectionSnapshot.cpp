#include "SelectionSnapshot.h"

#include <QItemSelectionModel>

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
        if (range.topLeft().isValid()) // range.isValid() compares parents, which take time to find
            add(range);
    }
}

QModelIndexList SelectionSnapshot::rows() const
{
    QModelIndexList result;
    for (const Row& row : m_rows) {
        if (m_columns.value(row) == columnBits(0, m_model->columnCount(row.first) - 1))
            result.append(m_model->index(row.second, 0, row.first));
    }
    return result;
}

bool SelectionSnapshot::contains(const QModelIndex& index) const
{
    return m_columns.value({index.parent(), index.row()}) & columnBits(0, 0);
}

void SelectionSnapshot::add(const QItemSelectionRange& range)
{
    const QModelIndex parent = range.parent();
    const quint64 columns = columnBits(range.left(), range.right());
    for (int row = range.top(); row <= range.bottom(); ++row) {
        quint64& selected = m_columns[{parent, row}];
        if (!selected)
            m_rows.append({parent, row});
        selected |= columns;
    }
}

} // namespace ui
