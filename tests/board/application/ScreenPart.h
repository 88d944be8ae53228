#pragma once

#include <QRect>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/**
 * A widget that can be seen, or a part of one, such as an item of a view.
 *
 * It is named by a path of names with " > " between them. The first one is the object name of a
 * widget, or "popup" for the pop-up that is open, or "keypad" for the open keypad; there may be but
 * one of them. Each further one is the object name, the accessible name, the text or the class of a
 * widget inside the one before, or the text of an item of a view or of an entry of a menu.
 */
struct ScreenPart
{
    QWidget* widget = nullptr; ///< None if there is no such part, or it cannot be seen.
    QRect rect; ///< Within the widget.

    static ScreenPart find(const QString& path);

    /// Whether its middle is inside all that it lies on, rather than scrolled away.
    bool isInSight() const;

    /// Where it is on the screen, in the screen's own pixels.
    QRect onScreen() const;
};
