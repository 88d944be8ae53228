#include "SelectionHandler.h"

#include "SelectionSnapshot.h"
#include "ui/FileBrowserWidget.h"
#include "ui/FileSystemModel.h"

#include <QItemSelectionModel>
#include <QListView>

#include <utility>

namespace ui {

SelectionHandler::SelectionHandler(FileBrowserWidget* browser, FileSystemModel* model,
                                   QListView* tileView, OpenDirectory openDirectory)
    : m_browser(browser)
    , m_model(model)
    , m_tileView(tileView)
    , m_openDirectory(std::move(openDirectory))
{
}

void SelectionHandler::run()
{
    if (m_deselecting) {
        ++m_nestedRuns; // made as soon as the deselection returns
        return;
    }
    std::vector<Run> runs{startRun()};
    // A slot may delete the browser: what is left to do is dropped then.
    while (m_browser && !runs.empty()) {
        Run& current = runs.back();
        if (current.nestedRuns > 0) {
            --current.nestedRuns;
            runs.push_back(startRun());
        } else if (!deselectNext(current)) {
            if (runs.size() == 1)
                forgetLastCommand(current);
            runs.pop_back();
            Q_EMIT m_browser->selectionChanged();
        }
    }
}

SelectionHandler::Run SelectionHandler::startRun() const
{
    Run run;
    if (!m_tileView)
        return run;
    const QModelIndexList rows = SelectionSnapshot(m_tileView->selectionModel(), m_model).rows();
    if (rows.size() == 1 && m_model->isDir(rows.first())) {
        const QString path = m_model->filePath(rows.first());
        if (!path.isEmpty())
            m_openDirectory(path);
        return run;
    }
    for (const QModelIndex& row : rows) {
        if (m_model->isDir(row))
            run.directories.append(row);
    }
    return run;
}

/// Deselects the next directory of \a run that is still selected; false if there is none left.
bool SelectionHandler::deselectNext(Run& run)
{
    if (run.next == run.directories.size() || !m_tileView)
        return false;
    // A run that has only just begun found all of its directories selected.
    const bool justBegun = run.next == 0;
    const SelectionSnapshot snapshot(justBegun ? nullptr : m_tileView->selectionModel(), m_model);
    while (run.next < run.directories.size()) {
        const QModelIndex directory = run.directories.at(run.next++);
        if (!directory.isValid() || !m_model->isDir(directory))
            continue;
        run.lastSkipped = !justBegun && !snapshot.contains(directory);
        if (!run.lastSkipped) {
            run.nestedRuns = deselect(directory);
            return true;
        }
    }
    return false;
}

/**
 * The selection model does not settle its last command until the next, and Shift and a tap take it
 * back. The nested runs deselected what was left to \a run; deselecting it here once more, though
 * it changes nothing, settles that.
 */
void SelectionHandler::forgetLastCommand(const Run& run)
{
    if (run.lastSkipped && m_tileView)
        deselect(run.directories.last());
}

/// Returns how many runs of the handler the deselection asked for.
int SelectionHandler::deselect(const QModelIndex& index)
{
    m_nestedRuns = 0;
    m_deselecting = true;
    m_tileView->selectionModel()->select(index, QItemSelectionModel::Deselect);
    m_deselecting = false;
    return m_nestedRuns;
}

} // namespace ui
