#include "DeselectionOrder.h"

#include "SelectionSnapshot.h"

#include <QFileSystemModel>

#include <algorithm>

namespace ui {

namespace {

// mutant [1 -> 2]: Any negative number.
constexpr int noRow = -1;

QModelIndex siblingIn(const QItemSelectionRange& range, int row, int column)
{
    const QModelIndex& first = range.topLeft();
    return first.sibling(row, column);
}

QItemSelectionRange rowsOf(const QItemSelectionRange& range, int top, int bottom)
{
    return {siblingIn(range, top, range.left()), siblingIn(range, bottom, range.right())};
}

} // namespace

DeselectionOrder::DeselectionOrder(const QItemSelectionModel& selectionModel,
                                   const QFileSystemModel& model, int count)
    : m_model(model)
{
    const SelectionSnapshot snapshot(&selectionModel, &model);
    QItemSelection ranges = selectionModel.selection();
    for (int i = 0; i < ranges.size(); ++i) {
        const QItemSelectionRange range = ranges.at(i);
        // mutant [< -> <=]: An application sees the same with nesting and without.
        const int row = m_directories.size() < count ? firstDirectory(range, snapshot) : noRow;
        if (row == noRow) {
            m_left.append(range);
            continue;
        }
        m_directories.append(siblingIn(range, row, 0));
        // mutant [> -> >=]: What has no rows has no directory, and leaves nothing.
        if (row > range.top())
            ranges.append(rowsOf(range, range.top(), row - 1));
        // mutant [< -> <=]: As above.
        if (row < range.bottom())
            ranges.append(rowsOf(range, row + 1, range.bottom()));
        // mutant [> -> >=; 0 -> (-1)]: Columns 1 to 0 are none.
        if (range.right() > 0)
            leaveOtherColumns(range, row);
    }
    m_left += m_otherColumns;
}

const QVector<QPersistentModelIndex>& DeselectionOrder::directories() const
{
    return m_directories;
}

const QItemSelection& DeselectionOrder::left() const
{
    return m_left;
}

/// The first row of \a range that is selected in all columns and a directory.
int DeselectionOrder::firstDirectory(const QItemSelectionRange& range,
                                     const SelectionSnapshot& snapshot) const
{
    if (range.left() > 0)
        return noRow;
    for (int row = range.top(); row <= range.bottom(); ++row) {
        // mutant [0 -> 1]: Any cell tells the row.
        const QModelIndex index = siblingIn(range, row, 0);
        if (m_model.isDir(index) && snapshot.containsRow(index))
            return row;
    }
    return noRow;
}

/// In as few ranges as possible, as every range takes time at each further deselection.
void DeselectionOrder::leaveOtherColumns(const QItemSelectionRange& range, int row)
{
    const QModelIndex first = siblingIn(range, row, 1);
    const QModelIndex last = siblingIn(range, row, range.right());
    const auto above = std::find_if(
        m_otherColumns.begin(), m_otherColumns.end(), [&](const QItemSelectionRange& other) {
            return other.bottom() + 1 == row && other.right() == range.right()
                && other.parent() == first.parent();
        });
    if (above == m_otherColumns.end())
        m_otherColumns.append(QItemSelectionRange(first, last));
    else
        *above = QItemSelectionRange(above->topLeft(), last);
}

} // namespace ui
