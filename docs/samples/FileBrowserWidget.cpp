#include "Samples.h"

#include <ui/FileBrowserWidget.h>

#include <QFileInfo>
#include <QPushButton>

void samples::fileBrowser(QWidget* window)
{
    //! [FileBrowserWidget]
    auto* browser = new ui::FileBrowserWidget(window);
    browser->setFilters({"*.txt", "*.csv"});
    browser->setAllowedDirs({"/data", "/media/usb"});

    auto* open = new QPushButton(QObject::tr("Open"), window);
    open->setEnabled(false);
    QObject::connect(browser, &ui::FileBrowserWidget::selectionChanged, open, [browser, open] {
        const QString selected = browser->selectedFiles().value(0);
        open->setEnabled(QFileInfo(selected).isFile()); // an opened directory stays selected
    });
    //! [FileBrowserWidget]
}
