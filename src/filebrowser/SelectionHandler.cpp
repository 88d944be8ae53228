#include "SelectionHandler.h"

#include "DeselectionOrder.h"
#include "SelectionSnapshot.h"
#include "ui/FileBrowserWidget.h"
#include "ui/FileSystemModel.h"

#include <QItemSelectionModel>
#include <QListView>
#include <QSignalBlocker>

#include <utility>

namespace ui {

namespace {

// A level takes a kilobyte or two of the stack, of which a slot of the application needs the rest.
// mutant [256 -> 257; 256 -> 255]: An application sees the same with nesting and without.
constexpr int maxNestedRuns = 256;

} // namespace

SelectionHandler::SelectionHandler(FileBrowserWidget* browser, FileSystemModel* model,
                                   QListView* tileView, OpenDirectory openDirectory)
    : m_browser(browser)
    , m_model(model)
    , m_tileView(tileView)
    , m_openDirectory(openDirectory)
    , m_tapGuard(tileView->viewport())
{
}

void SelectionHandler::run()
{
    if (!std::exchange(m_nothingLeft, false))
        deselect(openOrCollect());
    if (m_browser) // a slot may have deleted it
        Q_EMIT m_browser->selectionChanged();
}

/// Opens the selected directory if it is the only row; else returns the directories among the rows.
SelectionHandler::Directories SelectionHandler::openOrCollect()
{
    Directories directories;
    const QModelIndexList rows = SelectionSnapshot(selectionModel(), m_model).rows();
    if (rows.size() == 1 && m_model->isDir(rows.first())) {
        open(m_model->filePath(rows.first()));
        return directories;
    }
    for (const QModelIndex& row : rows) {
        if (m_model->isDir(row))
            directories.append(row);
    }
    return directories;
}

void SelectionHandler::open(const QString& path)
{
    if (path.isEmpty())
        // mutant [dropped]: A row of a file system always has a path.
        return;
    // cppcheck-suppress nullPointerRedundantCheck ; there is a model until a slot deletes it below
    const QString before = m_model->rootPath();
    (m_browser->*m_openDirectory)(path);
    if (m_model && m_model->rootPath() != before)
        m_tapGuard.directoryOpened();
}

void SelectionHandler::deselect(const Directories& directories)
{
    deselectWithoutNesting(directories.size() - maxNestedRuns);
    SelectionSnapshot snapshot(selectionModel(), m_model);
    for (int i = 0; i < directories.size() && selectionModel(); ++i) {
        const QModelIndex directory = directories.at(i);
        if (!directory.isValid() || !m_model->isDir(directory))
            continue;
        // The nested runs deselect what follows. To do so here once more changes nothing, but for
        // the last one: the selection model's last command is what Shift and a tap take back.
        // mutant [1 -> 2]: To do so of the one before the last too only takes longer.
        if (i < directories.size() - 1 && !snapshot.contains(directory))
            // mutant [dropped]: Only takes longer.
            continue;
        // mutant [order]: An old snapshot has more of the directories, which only takes longer.
        selectionModel()->select(directory, QItemSelectionModel::Deselect);
        // mutant [dropped]: As above.
        snapshot = SelectionSnapshot(selectionModel(), m_model);
    }
}

/// Takes the first \a count directories out, then reports them as nested runs do when they return.
void SelectionHandler::deselectWithoutNesting(int count)
{
    // mutant [<= -> <; 0 -> 1; 0 -> (-1)]: An application sees the same with nesting and without.
    if (count <= 0)
        return;
    const DeselectionOrder order(*selectionModel(), *m_model, count);
    {
        const QSignalBlocker blocker(selectionModel());
        selectionModel()->select(order.left(), QItemSelectionModel::ClearAndSelect);
    }
    for (int i = order.directories().size() - 1; i >= 0 && selectionModel(); --i) {
        const QModelIndex directory = order.directories().at(i);
        // The first report runs the handler for all that is still selected. To run it again takes
        // time, if there are many files.
        // mutant [dropped; 1 -> 2]: The runs find files alone, unless a slot selects directories.
        m_nothingLeft = i < order.directories().size() - 1;
        Q_EMIT selectionModel()->selectionChanged({}, QItemSelection(directory, directory));
    }
}

/// The tile view's, of our model; null if there is none any more.
QItemSelectionModel* SelectionHandler::selectionModel() const
{
    return m_tileView && m_model ? m_tileView->selectionModel() : nullptr;
}

} // namespace ui
