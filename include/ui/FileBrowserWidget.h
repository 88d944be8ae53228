#pragma once

#include "platform_widgets_export.h"

#include <QStringList>
#include <QWidget>

class BreadCrumbsWidget;
QT_BEGIN_NAMESPACE
class QComboBox;
class QHBoxLayout;
class QListView;
class QTreeView;
class QVBoxLayout;
QT_END_NAMESPACE

namespace ui {

class FileSystemModel;

/**
 * A file picker for touch screens, to be embedded in an application's own screens.
 *
 * It shows one directory at a time, either in a tile view or in a list view with size and date.
 * Above them stand a combo box of the directories that the user may start from, a path bar
 * (BreadCrumbsWidget) that leads back up, and the two buttons that switch the views. A directory is
 * opened by selecting it in the tile view. QFileDialog comes nearest in Qt; unlike it this is no
 * dialog, has no buttons to accept or reject, and offers only the allowed directories.
 *
 * \image html FileBrowserWidget.png "A browser with two allowed directories"
 *
 * \snippet FileBrowserWidget.cpp FileBrowserWidget
 *
 * In a dialog, the selection is read before the dialog closes: selectedFiles() of a browser that is
 * hidden is the selection of the list view, and so mostly empty.
 *
 * \snippet FileDialog.cpp FileDialog
 *
 * \par What a user meets
 * - One tap opens one directory: while the finger that opened one still rests on the screen, and in
 *   the second half of a double tap, the tile view selects nothing.
 * - An opened directory stays selected in the tile view until something else is. In single
 *   selection it cannot be opened again before that: a user who has come back up to a directory
 *   with this one entry finds nothing else to tap. Clear the selection of the tile view in a slot
 *   of BreadCrumbsWidget::dirChanged() where that can happen.
 * - The list view opens no directories. A directory tapped there is selected like a file, and is
 *   among selectedFiles().
 * - In multiple selection directories are deselected as soon as something is selected besides them.
 *
 * \anchor looks_FileBrowserWidget
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | palette roles | those of the path bar and of Qt's own widgets |
 * | `#FileBrowser` | the browser, and what lies in it: `#FileBrowser QAbstractItemView::item` |
 * | `#FileBrowser #toolbarButton` | the two view buttons, whose icons are dark |
 * | `#FileBrowser #breadcrumb` | see \ref looks_BreadCrumbsWidget "BreadCrumbsWidget" |
 * | `#FileBrowser QComboBox` | the directories to start from |
 *
 * The combo box and the views use the device's file browser font.
 */
class PLATFORM_WIDGETS_EXPORT FileBrowserWidget : public QWidget
{
    Q_OBJECT

public:
    /// How many files the user may select. The type is open to any int, see setSelectionMode().
    enum SelectionMode : int {
        NoSelection = 0, ///< None; directories cannot be opened from the views either.
        SingleSelection = 1, ///< One; the default.
        MultiSelection = 2 ///< Any number: a tap selects one, Ctrl and Shift extend the selection.
    };

    /// A browser without allowed directories, showing the tile view; \a parent owns it.
    explicit FileBrowserWidget(QWidget* parent = nullptr);
    ~FileBrowserWidget() override;

    /**
     * Builds the upper half of the browser: combo box, path bar and view buttons. The constructor
     * calls it once; it is of no use afterwards. The caller owns the layout.
     */
    QHBoxLayout* createNavBar();

    /// Builds the lower half: the two views, one of them hidden. Otherwise as createNavBar().
    QVBoxLayout* createFileView();

    /**
     * Offers \a dirs in the combo box, in this order and with these texts, and shows the first.
     * Directories that do not exist at this moment are left out. With nothing left the browser and
     * the path bar are given an empty path, but only if there were directories to choose from
     * before.
     *
     * The user is confined to these directories by what is offered; setRootPath() is not.
     */
    void setAllowedDirs(QStringList const& dirs);

    /**
     * Shows only the files that match one of the wildcard patterns \a filters, such as "*.txt", and
     * all directories. All files if the list is empty, the default.
     */
    void setFilters(QStringList const& filters);

    /// The directory that is shown, as the model has normalised it.
    QString currentPath() const;

    /// Sets the selection mode of both views. A value out of range leaves them as they are.
    void setSelectionMode(ui::FileBrowserWidget::SelectionMode mode);

    /// The selection mode of the tile view; NoSelection for any that has no name here.
    ui::FileBrowserWidget::SelectionMode selectionMode() const;

    /**
     * Shows the directory \a path in both views, whether it lies in an allowed directory or not.
     * The path bar is not changed. A path that does not exist is ignored; an empty one shows the
     * top of the file system.
     */
    void setRootPath(QString path);

    /**
     * The paths of what is selected in the view that is visible, in the order of its selection
     * model. In the tile view an opened directory stays selected until something else is; in the
     * list view directories can be selected like files. While the browser itself is not visible,
     * this is the selection of the list view.
     */
    QStringList selectedFiles() const;

Q_SIGNALS:
    /**
     * Emitted when the selection of either view has changed, after a directory selected in the tile
     * view has been opened or, among several rows, deselected. Each such deselection adds one
     * emission. All of them come before the first emission. Only if nothing but directories had
     * been selected is the last of them opened before the first emission, and deselected after it.
     *
     * The browser may be deleted in a slot if the selection was changed by the program. The views'
     * own event handling is still under way if the user changed it: use deleteLater() then.
     */
    void selectionChanged();

private:
    PLATFORM_WIDGETS_NO_EXPORT void changeRoot(int index);
    PLATFORM_WIDGETS_NO_EXPORT void openDirectory(const QString& path);

    FileSystemModel* m_model; // owned, without a parent; null once a program has deleted it
    BreadCrumbsWidget* m_breadCrumbs; // null likewise, as in a slot of dirChanged()
    QComboBox* m_rootCombo;
    QListView* m_tileView;
    QTreeView* m_listView;
    int m_selectionMode;
};

} // namespace ui
