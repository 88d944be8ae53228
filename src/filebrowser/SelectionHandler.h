#pragma once

#include "TapGuard.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QVector>

QT_BEGIN_NAMESPACE
class QItemSelectionModel;
class QListView;
QT_END_NAMESPACE

namespace ui {

class FileBrowserWidget;
class FileSystemModel;

/**
 * Opens the directory, or sorts the directories out of the files, that were selected in the tile
 * view.
 *
 * A run of the handler reads the selected rows. A single directory is opened; otherwise every
 * directory among the rows is deselected. Each deselection changes the selection, and so runs the
 * handler again before the run under way goes on. At its end each run emits selectionChanged().
 *
 * A run with more directories than can nest on the stack leaves the last of them to nested runs.
 * The others it takes out first and reports afterwards, in the order in which those runs would
 * return.
 */
class SelectionHandler
{
public:
    /// How the browser shows another directory.
    using OpenDirectory = void (FileBrowserWidget::*)(const QString& path);

    SelectionHandler(FileBrowserWidget* browser, FileSystemModel* model, QListView* tileView,
                     OpenDirectory openDirectory);

    /// The answer to a change of either view's selection.
    void run();

private:
    using Directories = QVector<QPersistentModelIndex>;

    Directories openOrCollect();
    void open(const QString& path);
    void deselect(const Directories& directories);
    void deselectWithoutNesting(int count);
    QItemSelectionModel* selectionModel() const;

    QPointer<FileBrowserWidget> m_browser;
    QPointer<FileSystemModel> m_model;
    QPointer<QListView> m_tileView;
    const OpenDirectory m_openDirectory;
    TapGuard m_tapGuard;
    bool m_nothingLeft = false; ///< Whether the next run finds what the last one has left.
};

} // namespace ui
