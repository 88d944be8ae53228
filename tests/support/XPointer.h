#pragma once

#include <QPoint>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace test {

/**
 * The pointer and the keyboard of the X server that the test runs on, moved from outside the
 * process by xdotool.
 *
 * Each function processes events until xdotool has ended, and returns whether it succeeded. What
 * the application makes of it may take longer: wait for it.
 */
class XPointer
{
public:
    XPointer() = delete;

    static bool tap(const QPoint& globalPosition);
    /// In the middle of \a widget.
    static bool tap(const QWidget& widget);
    static bool tap(const QWidget& widget, const QPoint& position);

    /// The two halves of a tap.
    static bool press(const QPoint& globalPosition);
    static bool release();

    /// Moves to \a globalPosition without a tap.
    static bool move(const QPoint& globalPosition);
    /// Presses at \a from, moves to \a to as fast as a hand, and releases there.
    static bool drag(const QPoint& from, const QPoint& to);

    /// Presses and releases the key of the X name \a name on the hardware keyboard, such as
    /// "Return".
    static bool key(const char* name);
};

} // namespace test
