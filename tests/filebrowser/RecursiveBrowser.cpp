#include "RecursiveBrowser.h"

#include <QItemSelectionModel>

namespace test {

RecursiveBrowser::RecursiveBrowser(const QString& rootPath)
{
    m_model.setFilter(QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
    tileView.setSelectionBehavior(QAbstractItemView::SelectRows);
    tileView.setModel(&m_model);
    tileView.setRootIndex(m_model.setRootPath(rootPath));
    QObject::connect(tileView.selectionModel(), &QItemSelectionModel::selectionChanged, &tileView,
                     [this](const QItemSelection&, const QItemSelection& gone) {
                         deselected(gone);
                         handleSelection();
                     });
}

QString RecursiveBrowser::currentPath() const
{
    return m_model.rootPath();
}

QString RecursiveBrowser::barPath() const
{
    return m_barPath;
}

void RecursiveBrowser::handleSelection()
{
    QItemSelectionModel* selectionModel = tileView.selectionModel();
    const QModelIndexList rows = selectionModel->selectedRows();
    if (rows.size() == 1 && m_model.isDir(rows.first())) {
        m_barPath = m_model.filePath(rows.first());
        tileView.setRootIndex(m_model.setRootPath(m_barPath));
    } else {
        for (const QModelIndex& row : rows) {
            if (m_model.isDir(row))
                selectionModel->select(row, QItemSelectionModel::Deselect);
        }
    }
    selectionChanged();
}

} // namespace test
