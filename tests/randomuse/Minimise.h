#pragma once

#include "Machine.h"

namespace soak {

/**
 * The steps that are left when none, and no run of half, a quarter... of their number, can be
 * taken out without \a fails becoming false. \a steps themselves fail.
 */
Steps minimised(Steps steps, const std::function<bool(const Steps&)>& fails);

} // namespace soak
