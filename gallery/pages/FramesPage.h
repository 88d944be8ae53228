#pragma once

#include "GalleryPage.h"

namespace ui {
class CRoundedFrame;
}

/// ui::CRoundedFrame plain, raised, sunken and filled, and masked over a picture.
class FramesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit FramesPage(QWidget* parent = nullptr);

private:
    ui::CRoundedFrame* makeFrame(const QString& name);
    QWidget* makeMaskedFrame();
};
