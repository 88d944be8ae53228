#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QVector>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QListView;
QT_END_NAMESPACE

namespace ui {

class FileBrowserWidget;
class FileSystemModel;

/**
 * Opens the directory, or sorts the directories out of the files, that were selected in the tile view.
 *
 * A run of the handler reads the selected rows. A single directory is opened; otherwise every
 * directory among the rows is deselected. Each deselection changes the selection, and so runs the
 * handler again before the run under way goes on. At its end each run emits selectionChanged().
 *
 * Those nested runs are not function calls, one inside the other: a thousand selected directories
 * would nest as deeply. The runs under way are kept in a list instead, and advanced in the same order.
 */
class SelectionHandler
{
public:
    using OpenDirectory = std::function<void(const QString& path)>;

    SelectionHandler(FileBrowserWidget* browser, FileSystemModel* model, QListView* tileView,
                     OpenDirectory openDirectory);

    /// The answer to a change of either view's selection.
    void run();

private:
    struct Run
    {
        QVector<QPersistentModelIndex> directories; ///< To deselect, as found at the run's start.
        int next = 0; ///< The first one not dealt with yet.
        int nestedRuns = 0; ///< To be made before the run goes on.
        bool lastSkipped = false; ///< Whether the last directory was deselected by another run.
    };

    Run startRun() const;
    bool deselectNext(Run& run);
    void forgetLastCommand(const Run& run);
    int deselect(const QModelIndex& index);

    QPointer<FileBrowserWidget> m_browser;
    QPointer<FileSystemModel> m_model;
    QPointer<QListView> m_tileView;
    OpenDirectory m_openDirectory;
    bool m_deselecting = false;
    int m_nestedRuns = 0; ///< Runs asked for by the deselection under way.
};

} // namespace ui
