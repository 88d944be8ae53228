#include "Pages.h"

#include <QCoreApplication>

namespace {

struct Gallery
{
    Q_DECLARE_TR_FUNCTIONS(Gallery)
};

} // namespace

QVector<PageEntry> allPages(const QStringList& directories)
{
    const auto makeBattery = [](QWidget* parent) { return makeBatteryPage(parent); };
    const auto makeFileBrowser = [directories](QWidget* parent) {
        return makeFileBrowserPage(parent, directories);
    };
    return {
        {QStringLiteral("overview"), Gallery::tr("Overview"), makeOverviewPage},
        {QStringLiteral("frames"), Gallery::tr("Frames"), makeFramesPage},
        {QStringLiteral("grid-button"), Gallery::tr("Grid button"), makeGridButtonPage},
        {QStringLiteral("switch"), Gallery::tr("Switch"), makeSwitchPage},
        {QStringLiteral("text-entry"), Gallery::tr("Text entry"), makeTextEntryPage},
        {QStringLiteral("battery"), Gallery::tr("Battery"), makeBattery},
        {QStringLiteral("scroll-indicator"), Gallery::tr("Scroll indicator"),
         makeScrollIndicatorPage},
        {QStringLiteral("animation"), Gallery::tr("Animation"), makeAnimationPage},
        {QStringLiteral("file-browser"), Gallery::tr("File browser"), makeFileBrowser},
    };
}
