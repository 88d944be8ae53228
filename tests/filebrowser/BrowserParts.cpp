#include "BrowserParts.h"

#include "BreadCrumbsWidget.h"
#include "ClickableLabel.h"
#include "ui/FileSystemModel.h"

#include <QComboBox>
#include <QItemSelectionModel>
#include <QLayout>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

namespace test {

BrowserParts::BrowserParts(QWidget& browser)
    : combo(browser.findChild<QComboBox*>(QString(), Qt::FindDirectChildrenOnly))
    , bar(browser.findChild<BreadCrumbsWidget*>(QString(), Qt::FindDirectChildrenOnly))
    , tileView(browser.findChild<QListView*>(QString(), Qt::FindDirectChildrenOnly))
    , listView(browser.findChild<QTreeView*>(QString(), Qt::FindDirectChildrenOnly))
    , tileButton(browser.findChildren<QPushButton*>(QStringLiteral("toolbarButton")).value(0))
    , listButton(browser.findChildren<QPushButton*>(QStringLiteral("toolbarButton")).value(1))
    , model(dynamic_cast<ui::FileSystemModel*>(tileView->model()))
{
}

QPushButton* moreButton(const BreadCrumbsWidget& bar)
{
    return bar.findChild<QPushButton*>();
}

QList<ClickableLabel*> crumbLabels(const BreadCrumbsWidget& bar)
{
    QList<ClickableLabel*> labels;
    for (int i = 0; i < bar.layout()->count(); ++i) {
        if (auto* label = qobject_cast<ClickableLabel*>(bar.layout()->itemAt(i)->widget()))
            labels.append(label);
    }
    return labels;
}

QStringList crumbs(const BreadCrumbsWidget& bar)
{
    QStringList texts;
    const QList<ClickableLabel*> labels = crumbLabels(bar);
    for (const ClickableLabel* label : labels)
        texts.append(label->text());
    return texts;
}

QString lastCrumbPath(const BreadCrumbsWidget& bar)
{
    const QList<ClickableLabel*> labels = crumbLabels(bar);
    return labels.isEmpty() ? QString() : labels.last()->property("directory").toString();
}

ClickableLabel* crumb(const BreadCrumbsWidget& bar, const QString& text)
{
    const QList<ClickableLabel*> labels = crumbLabels(bar);
    for (ClickableLabel* label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

QStringList shownNames(const QAbstractItemView& view)
{
    QStringList names;
    for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row)
        names.append(view.model()->index(row, 0, view.rootIndex()).data().toString());
    return names;
}

QModelIndex entry(const QAbstractItemView& view, const QString& name)
{
    const int row = shownNames(view).indexOf(name);
    return row < 0 ? QModelIndex() : view.model()->index(row, 0, view.rootIndex());
}

void selectEntry(const QAbstractItemView& view, const QString& name)
{
    view.selectionModel()->select(entry(view, name),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void selectEntries(const QAbstractItemView& view, const QStringList& names)
{
    QItemSelection selection;
    for (const QString& name : names)
        selection.append(QItemSelectionRange(entry(view, name)));
    view.selectionModel()->select(selection,
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QStringList selectedNames(const QAbstractItemView& view)
{
    QStringList names;
    const QModelIndexList rows = view.selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        names.append(row.data().toString());
    return names;
}

} // namespace test
