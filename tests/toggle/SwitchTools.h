#pragma once

class Animator;
class Switch;

namespace test {

/// The three animators of a switch.
struct Animators
{
    Animator* thumbBrush;
    Animator* trackBrush;
    Animator* thumbPos;

    /// Stops the clock of all three \a msec milliseconds into their transition.
    void holdAt(int msec) const;

    /// Has all three run, \a msec milliseconds into their transition.
    void runFrom(int msec) const;
};

Animators animatorsOf(const Switch& control);

} // namespace test
