#pragma once

namespace platform {
namespace ui {
namespace style {

/// The named fonts of the device.
enum class Fonts {
    FileBrowser = 1, ///< Font of the file browser: its path combo box and both of its views.
};

} // namespace style
} // namespace ui
} // namespace platform
