#pragma once

#include <QItemSelection>
#include <QPersistentModelIndex>
#include <QVector>

QT_BEGIN_NAMESPACE
class QFileSystemModel;
class QItemSelectionModel;
QT_END_NAMESPACE

namespace ui {

class SelectionSnapshot;

/**
 * Which directories the selection handler deselects first if its runs nest, and what they leave.
 *
 * A deselection moves what it leaves of its range to the end of the selection, where the next run
 * finds it behind the other ranges. So the ranges take turns, and the order of the files changes.
 */
class DeselectionOrder
{
public:
    /// For the first \a count directories that \a selectionModel, whose model is \a model, has
    /// selected.
    DeselectionOrder(const QItemSelectionModel& selectionModel, const QFileSystemModel& model,
                     int count);

    /// Their cells in column 0, which are deselected, in order.
    const QVector<QPersistentModelIndex>& directories() const;

    /// What is still selected then.
    const QItemSelection& left() const;

private:
    int firstDirectory(const QItemSelectionRange& range, const SelectionSnapshot& snapshot) const;
    void leaveOtherColumns(const QItemSelectionRange& range, int row);

    const QFileSystemModel& m_model;
    QVector<QPersistentModelIndex> m_directories;
    QItemSelection m_left;
    QItemSelection m_otherColumns; ///< Of the directories.
};

} // namespace ui
