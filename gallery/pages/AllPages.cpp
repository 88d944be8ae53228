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
        {QStringLiteral("switch"), tr("Switch"), make<SwitchPage>},
        {QStringLiteral("text-entry"), tr("Text entry"), make<TextEntryPage>},
        {QStringLiteral("battery"), tr("Battery"), make<BatteryPage>},
        {QStringLiteral("scroll-indicator"), tr("Scroll indicator"), make<ScrollIndicatorPage>},
        {QStringLiteral("animation"), tr("Animation"), make<AnimationPage>},
        {QStringLiteral("file-browser"), tr("File browser"), make<FileBrowserPage>},
    };
}
