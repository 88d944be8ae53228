#include "Samples.h"

#include <ui/FileSystemModel.h>

#include <QTreeView>

void samples::fileSystemModel(QWidget* window)
{
    //! [FileSystemModel]
    auto* view = new QTreeView(window);
    auto* model = new ui::FileSystemModel(view);
    view->setModel(model);
    view->setRootIndex(model->setRootPath("/data"));
    view->hideColumn(2); // the type
    //! [FileSystemModel]
}
