#pragma once

#include "GalleryPage.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
QT_END_NAMESPACE

namespace ui {
class FileBrowserWidget;
}

/**
 * The file browser on the real file system: in the directories named on the command line, or the
 * user's own and the top of the file system.
 */
class FileBrowserPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit FileBrowserPage(QWidget* parent = nullptr);

private:
    QComboBox* makeFilters();
    QComboBox* makeModes();
    void showSelection();

    ui::FileBrowserWidget* m_browser;
    QLabel* m_selection;
};
