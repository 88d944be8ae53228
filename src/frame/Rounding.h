#pragma once

namespace ui {

/// As Qt 5's qRound(): Qt 6 rounds halves below zero down. \a value must fit an int.
inline int roundedHalfUp(double value)
{
    const double raised = value + 0.5;
    const int towardsZero = int(raised);
    return towardsZero > raised ? towardsZero - 1 : towardsZero;
}

} // namespace ui
