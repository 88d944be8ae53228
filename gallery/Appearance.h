#pragma once

#include <QPalette>
#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/**
 * How the gallery looks.
 *
 * Palette, layout direction and style sheet are those of the application, so that pop-ups follow
 * them too; disabled is the page alone.
 */
struct Appearance
{
    bool dark = false;
    bool rightToLeft = false;
    bool disabled = false;
    QString styleSheet; ///< None if empty.

    void applyToApplication() const;
    void applyToPage(QWidget& page) const;

    static QPalette lightPalette();
    static QPalette darkPalette();

    /// \a palette with a button colour that an idle scroll indicator can be seen with, which is a
    /// shade of it: light on what is dark and dark on what is light.
    static QPalette indicatorPalette(QPalette palette);

    /// Leaves the buttons of \a browser with icons as light as in the light palette, since the
    /// icons are dark.
    static void keepIconButtonsLight(QWidget& browser);
};
