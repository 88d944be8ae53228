#pragma once

#include "Machine.h"

namespace soak {

/// How a run of steps ended: with the last step and what was broken, or after all of them.
struct Outcome
{
    int step = -1;
    QString broken; ///< Empty if nothing was.
};

/**
 * Performs \a steps one by one, checks the machine and the warnings after each, and stops at the
 * first promise that is not kept. \a progress is called with each step's number before it.
 */
Outcome play(Machine& machine, const Steps& steps, const std::function<void(int)>& progress);

} // namespace soak
