#include "AllPages.h"

#include "AnimationPage.h"
#include "BatteryPage.h"
#include "FileBrowserPage.h"
#include "FramesPage.h"
#include "GalleryPage.h"
#include "GridButtonPage.h"
#include "OverviewPage.h"
#include "ScrollIndicatorPage.h"
#include "SwitchPage.h"
#include "TextEntryPage.h"

#include <QCoreApplication>

namespace {

template <typename Page>
GalleryPage* make(QWidget* parent)
{
    return new Page(parent);
}

struct Gallery
{
    Q_DECLARE_TR_FUNCTIONS(Gallery)
};

} // namespace

QVector<PageEntry> allPages()
{
    return {
        {QStringLiteral("overview"), Gallery::tr("Overview"), make<OverviewPage>},
        {QStringLiteral("frames"), Gallery::tr("Frames"), make<FramesPage>},
        {QStringLiteral("grid-button"), Gallery::tr("Grid button"), make<GridButtonPage>},
        {QStringLiteral("switch"), Gallery::tr("Switch"), make<SwitchPage>},
        {QStringLiteral("text-entry"), Gallery::tr("Text entry"), make<TextEntryPage>},
        {QStringLiteral("battery"), Gallery::tr("Battery"), make<BatteryPage>},
        {QStringLiteral("scroll-indicator"), Gallery::tr("Scroll indicator"),
         make<ScrollIndicatorPage>},
        {QStringLiteral("animation"), Gallery::tr("Animation"), make<AnimationPage>},
        {QStringLiteral("file-browser"), Gallery::tr("File browser"), make<FileBrowserPage>},
    };
}
