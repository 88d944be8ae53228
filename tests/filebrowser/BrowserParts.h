#pragma once

#include <QModelIndex>
#include <QStringList>

class BreadCrumbsWidget;
class ClickableLabel;
QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QAbstractItemView;
class QComboBox;
class QListView;
class QPushButton;
class QTreeView;
class QWidget;
QT_END_NAMESPACE

namespace ui {
class FileSystemModel;
} // namespace ui

namespace test {

/// The child widgets of a FileBrowserWidget or RecursiveBrowser, found as an application finds
/// them.
struct BrowserParts
{
    explicit BrowserParts(QWidget& browser);

    QComboBox* combo;
    BreadCrumbsWidget* bar;
    QListView* tileView;
    QTreeView* listView;
    QPushButton* tileButton;
    QPushButton* listButton;
    ui::FileSystemModel* model;
};

/// The "..." button of a bar.
QPushButton* moreButton(const BreadCrumbsWidget& bar);
/// The crumbs of a bar, from left to right.
QList<ClickableLabel*> crumbLabels(const BreadCrumbsWidget& bar);
/// Their texts.
QStringList crumbs(const BreadCrumbsWidget& bar);
/// The path of the last crumb; empty if there is none.
QString lastCrumbPath(const BreadCrumbsWidget& bar);
/// The crumb with this text; null if there is none.
ClickableLabel* crumb(const BreadCrumbsWidget& bar, const QString& text);

/// The names in column 0 below the root of \a view.
QStringList shownNames(const QAbstractItemView& view);
/// The index of the entry \a name below the root of \a view; invalid if there is none.
QModelIndex entry(const QAbstractItemView& view, const QString& name);
/// Selects the whole row of \a name besides what is selected already, as the program, not the user.
void selectEntry(const QAbstractItemView& view, const QString& name);
/// Selects \a names alone, in one step.
void selectEntries(const QAbstractItemView& view, const QStringList& names);
/// The names of the rows selected in \a view.
QStringList selectedNames(const QAbstractItemView& view);

} // namespace test
