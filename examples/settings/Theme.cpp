#include "Theme.h"

#include <Switch.h>
#include <ui/ScrollIndicatorBar.h>

#include <QApplication>
#include <QFile>
#include <QPalette>

namespace {

struct Colors
{
    QColor ground; // of the screen
    QColor card; // of what lies on it
    QColor line; // around fields and cards
    QColor text;
    QColor faint; // text of less weight, and of what is disabled
    QColor accent; // what can be tapped, and what is on
    QColor onAccent; // text on it
    QColor error; // input that is not acceptable
};

Colors lightColors()
{
    return {"#eef1f3", "#ffffff", "#7b868d", "#1d2327", "#5a656c", "#0b6e99", "#ffffff", "#b3261e"};
}

Colors darkColors()
{
    return {"#16191c", "#24292d", "#7b868d", "#e6e9eb", "#a3adb3", "#5cb8e0", "#0b1a21", "#ff9c94"};
}

QPalette paletteOf(const Colors& colors)
{
    QPalette palette(colors.card, colors.ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colors.text);
        palette.setColor(QPalette::Disabled, role, colors.faint);
    }
    palette.setColor(QPalette::Base, colors.card);
    palette.setColor(QPalette::Highlight, colors.accent);
    palette.setColor(QPalette::HighlightedText, colors.onAccent);
    return palette;
}

/// The handle of a scroll indicator at rest has shades of the colour that buttons have, which would
/// be too near to a dark ground.
QPalette indicatorPaletteOf(const Colors& colors)
{
    QPalette palette = paletteOf(colors);
    palette.setColor(QPalette::Button, Qt::white);
    return palette;
}

QString styleSheetOf(const Colors& colors)
{
    QFile file(QStringLiteral(":/settings.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QString sheet = QString::fromUtf8(file.readAll());
    const std::pair<const char*, QColor> names[] = {
        {"@ground", colors.ground}, {"@card", colors.card},         {"@line", colors.line},
        {"@text", colors.text},     {"@faint", colors.faint},       {"@accent", colors.accent},
        {"@error", colors.error},   {"@onAccent", colors.onAccent},
    };
    for (const auto& [name, color] : names)
        sheet.replace(QLatin1String(name), color.name());
    return sheet;
}

} // namespace

void Theme::apply(QApplication& application, bool dark)
{
    const Colors colors = dark ? darkColors() : lightColors();
    application.setStyleSheet(QString()); // or widgets would keep the palette that they have
    QApplication::setPalette(paletteOf(colors));
    QApplication::setPalette(indicatorPaletteOf(colors), "ui::widgets::ScrollIndicatorBar");
    application.setStyleSheet(styleSheetOf(colors));

    // The style sheet has just set the colours of the switches, which shows those of the off state.
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (auto* toggle = qobject_cast<Switch*>(widget))
            toggle->toggle(toggle->checkState());
    }
}
