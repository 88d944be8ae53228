#include "Samples.h"

#include <ui/FileBrowserWidget.h>

#include <QPushButton>

void samples::fileBrowser(QWidget* window)
{
    //! [FileBrowserWidget]
    auto* browser = new ui::FileBrowserWidget(window);
    browser->setFilters({"*.txt", "*.csv"});
    browser->setAllowedDirs({"/data", "/media/usb"});

    auto* open = new QPushButton(QObject::tr("Open"), window);
    open->setEnabled(false);
    QObject::connect(browser, &ui::FileBrowserWidget::selectionChanged, open,
                     [browser, open] { open->setEnabled(!browser->selectedFiles().isEmpty()); });
    //! [FileBrowserWidget]
}
