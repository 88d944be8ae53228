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
    const auto classes = [](const char* names) {
        return QString::fromLatin1(names).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    return {
        {QStringLiteral("overview"), Gallery::tr("Overview"), makeOverviewPage, {}},
        {QStringLiteral("frames"), Gallery::tr("Frames"), makeFramesPage,
         classes("ui::CRoundedFrame")},
        {QStringLiteral("grid-button"), Gallery::tr("Grid button"), makeGridButtonPage,
         classes("ui::CGridArrangedButton")},
        {QStringLiteral("switch"), Gallery::tr("Switch"), makeSwitchPage, classes("Switch")},
        {QStringLiteral("own-controls"), Gallery::tr("Own controls"), makeOwnControlsPage,
         classes("SelectionControl Animator")},
        {QStringLiteral("text-entry"), Gallery::tr("Text entry"), makeTextEntryPage,
         classes("ui::KeypadLineEdit ui::LineEdit ui::KeypadPopup")},
        {QStringLiteral("battery"), Gallery::tr("Battery"), makeBattery,
         classes("ui::CBatteryStatusWidget")},
        {QStringLiteral("scroll-indicator"), Gallery::tr("Scroll indicator"),
         makeScrollIndicatorPage, classes("ui::widgets::ScrollIndicatorBar")},
        {QStringLiteral("animation"), Gallery::tr("Animation"), makeAnimationPage,
         classes("ui::CAnimationFwdRevLoop")},
        {QStringLiteral("path"), Gallery::tr("Path"), makePathPage,
         classes("BreadCrumbsWidget ClickableLabel")},
        {QStringLiteral("file-browser"), Gallery::tr("File browser"), makeFileBrowser,
         classes("ui::FileBrowserWidget ui::FileSystemModel")},
    };
}
