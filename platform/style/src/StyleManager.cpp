#include "platform/ui/style/StyleManager.h"

namespace platform {
namespace ui {
namespace style {

namespace {

/// Large enough to be hit by a finger when it sets the height of a row, in pixels.
constexpr int fileBrowserPixelSize = 20;

} // namespace

StyleManager* StyleManager::getInstance()
{
    static StyleManager instance;
    return &instance;
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): as the device's own is
QFont StyleManager::getStyleFont(Fonts font)
{
    QFont result;
    if (font == Fonts::FileBrowser)
        result.setPixelSize(fileBrowserPixelSize);
    return result;
}

} // namespace style
} // namespace ui
} // namespace platform
