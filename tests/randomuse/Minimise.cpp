#include "Minimise.h"

namespace soak {

namespace {

/// One attempt for each run of \a length steps; whether any was taken out.
bool takeOut(Steps& steps, int length, const std::function<bool(const Steps&)>& fails)
{
    bool taken = false;
    // From the end on, so that what a step needs is still there when the step is tried.
    for (int end = steps.size(); end > 0; end -= length) {
        const int begin = qMax(0, end - length);
        Steps fewer = steps;
        fewer.remove(begin, end - begin);
        if (!fewer.isEmpty() && fails(fewer)) {
            steps = fewer;
            taken = true;
        }
    }
    return taken;
}

} // namespace

Steps minimised(Steps steps, const std::function<bool(const Steps&)>& fails)
{
    int length = qMax(1, steps.size() / 2);
    while (steps.size() > 1) {
        const bool taken = takeOut(steps, length, fails);
        if (length == 1 && !taken)
            break;
        length = qMax(1, length / 2);
    }
    return steps;
}

} // namespace soak
