#include "AllPages.h"

#include "AnimationPage.h"
#include "FileBrowserPage.h"
#include "FramesPage.h"
#include "GridButtonPage.h"
#include "OverviewPage.h"
#include "ScrollIndicatorPage.h"
#include "SwitchPage.h"
#include "TextEntryPage.h"
#include "BatteryPage.h"
#include "GalleryPage.h"

#include <QCoreApplication>

namespace {

template <typename Page>
GalleryPage* make(QWidget* parent)
{
    return new Page(parent);
}

QString tr(const char* title)
{
    return QCoreApplication::translate("Gallery", title);
}

} // namespace

QVector<PageEntry> allPages()
{
    return {
        {QStringLiteral("overview"), tr("Overview"), make<OverviewPage>},
        {QStringLiteral("frames"), tr("Frames"), make<FramesPage>},
        {QStringLiteral("grid-button"), tr("Grid button"), make<GridButtonPage>},
        {QStringLiteral("scroll-indicator"), tr("Scroll indicator"), make<ScrollIndicatorPage>},
        {QStringLiteral("animation"), tr("Animation"), make<AnimationPage>},
        {QStringLiteral("text-entry"), tr("Text entry"), make<TextEntryPage>},
        {QStringLiteral("switch"), tr("Switch"), make<SwitchPage>},
        {QStringLiteral("file-browser"), tr("File browser"), make<FileBrowserPage>},
        {QStringLiteral("battery"), tr("Battery"), make<BatteryPage>},
    };
}
