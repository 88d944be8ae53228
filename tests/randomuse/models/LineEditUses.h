#pragma once

#include "WidgetMachine.h"

namespace soak {

/// What can be done to any ui::LineEdit, which is the machine's widget.
void addLineEditUses(WidgetMachine& machine);

} // namespace soak
