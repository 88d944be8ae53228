#pragma once

#include "GalleryPage.h"

/// What the library is, its version and Qt's, and the icons that it carries.
class OverviewPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit OverviewPage(QWidget* parent = nullptr);

private:
    static QLayout* makeIcons();
};
