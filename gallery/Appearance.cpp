#include "Appearance.h"

#include <QApplication>
#include <QPushButton>
#include <QWidget>

void Appearance::applyToApplication() const
{
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);

    const QPalette palette = dark ? darkPalette() : lightPalette();
    if (QApplication::palette() != palette) {
        // Widgets under a style sheet would keep the palette that they have.
        qApp->setStyleSheet(QString());
        QApplication::setPalette(palette);
        QApplication::setPalette(indicatorPalette(palette), "ui::widgets::ScrollIndicatorBar");
    }
    // Setting a style sheet polishes every widget anew, even if it is the same one.
    if (qApp->styleSheet() != styleSheet)
        qApp->setStyleSheet(styleSheet);
}

void Appearance::applyToPage(QWidget& page) const
{
    page.setEnabled(!disabled);
}

QPalette Appearance::lightPalette()
{
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Highlight, QColor(11, 110, 153));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(145, 145, 145));
    palette.setColor(QPalette::PlaceholderText, QColor(100, 100, 100));
    return palette;
}

QPalette Appearance::darkPalette()
{
    QPalette palette(QColor(54, 57, 60), QColor(43, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 31, 34));
    palette.setColor(QPalette::AlternateBase, QColor(38, 40, 43));
    palette.setColor(QPalette::Link, QColor(106, 176, 222));
    palette.setColor(QPalette::LinkVisited, QColor(170, 150, 218));
    palette.setColor(QPalette::ToolTipBase, QColor(60, 63, 65));
    palette.setColor(QPalette::ToolTipText, QColor(223, 225, 229));
    palette.setColor(QPalette::PlaceholderText, QColor(140, 144, 150));
    palette.setColor(QPalette::Highlight, QColor(43, 120, 162));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(223, 225, 229));
        palette.setColor(QPalette::Disabled, role, QColor(150, 154, 160));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(80, 83, 86));
    // Thin strokes on a button, which is lighter than the window, take the brightest text.
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::ButtonText, Qt::white);
    return palette;
}

QPalette Appearance::indicatorPalette(QPalette palette)
{
    const bool isDark = palette.color(QPalette::Window).lightness()
        < palette.color(QPalette::WindowText).lightness();
    palette.setColor(QPalette::Button, isDark ? QColor(182, 184, 188) : QColor(186, 186, 186));
    return palette;
}

void Appearance::keepIconButtonsLight(QWidget& browser)
{
    const auto buttons = browser.findChildren<QPushButton*>(QStringLiteral("toolbarButton"));
    for (QPushButton* button : buttons) {
        QPalette palette = button->palette();
        palette.setColor(QPalette::Button, lightPalette().color(QPalette::Button));
        button->setPalette(palette);
    }
}
