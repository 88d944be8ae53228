#include "Samples.h"

#include <BreadCrumbsWidget.h>

void samples::breadCrumbs(QWidget* window)
{
    //! [BreadCrumbsWidget]
    auto* bar = new BreadCrumbsWidget(window);
    bar->setRootPath("/data");
    bar->changeDir("/data/music/live");
    QObject::connect(bar, &BreadCrumbsWidget::dirChanged, bar, &BreadCrumbsWidget::changeDir);
    //! [BreadCrumbsWidget]
}
