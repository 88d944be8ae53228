#pragma once

#include "platform_style_export.h"

#include <platform/ui/style/Fonts.h>

#include <QFont>

namespace platform {
namespace ui {
namespace style {

/**
 * The device's fonts by name.
 *
 * This is the desktop stand-in for the style library of the device. Like there, one instance
 * serves the whole process; callers fetch it anew for every request and never free it.
 */
class PLATFORM_STYLE_EXPORT StyleManager
{
public:
    /// The process-wide instance; never null.
    static StyleManager* getInstance();

    /// The font for \a font; the application's default font for a name that is not known here.
    QFont getStyleFont(Fonts font);

private:
    StyleManager() = default;
    Q_DISABLE_COPY(StyleManager)
};

} // namespace style
} // namespace ui
} // namespace platform
