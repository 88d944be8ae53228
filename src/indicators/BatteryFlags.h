#pragma once

namespace ui {

/// The bits of a battery's state.
enum BatteryFlag {
    BatteryPresent = 1,
    BatteryCharging = 2,
};

} // namespace ui
