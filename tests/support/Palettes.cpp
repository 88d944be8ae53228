#include "Palettes.h"

namespace test {

QPalette lightPalette()
{
    return QPalette(QColor(239, 239, 239), QColor(239, 239, 239));
}

QPalette darkPalette()
{
    QPalette palette(QColor(60, 63, 65), QColor(40, 42, 44));
    palette.setColor(QPalette::Highlight, QColor(74, 136, 199));
    return palette;
}

QPalette telltalePalette()
{
    QPalette palette;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const QColor color =
                QColor::fromHsv(role * 17 % 360, 255 - group * 60, 200 - group * 30);
            palette.setColor(QPalette::ColorGroup(group), QPalette::ColorRole(role), color);
        }
    }
    return palette;
}

} // namespace test
