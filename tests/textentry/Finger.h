#pragma once

#include <QPoint>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/**
 * Taps and types from outside the process, by xdotool on the X server that the test runs on.
 *
 * Each operation lets the event loop run until xdotool has ended and returns whether it succeeded. What
 * the application makes of it may take longer: wait for it.
 */
namespace finger {

bool tap(const QPoint& globalPosition);
bool tap(const QWidget* widget);

/// The two halves of a tap.
bool press(const QPoint& globalPosition);
bool release();

/// Moves to \a globalPosition without a tap.
bool move(const QPoint& globalPosition);

/// Presses and releases the key of the X name \a name on the hardware keyboard, such as "Return".
bool key(const char* name);

} // namespace finger
