#include "TestApplication.h"

#include "Palettes.h"

#include <QStyleFactory>

namespace test {

namespace {

constexpr int fontPixelSize = 14;

QFont repeatableFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(fontPixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Deprecated, but the only switch that keeps advances the same on every platform.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    font.setStyleStrategy(QFont::ForceIntegerMetrics);
    QT_WARNING_POP
    return font;
}

} // namespace

void prepareApplication()
{
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
}

void settleApplication()
{
    QApplication::setFont(repeatableFont());
    QApplication::setPalette(lightPalette());
    QApplication::setCursorFlashTime(0);
}

} // namespace test
