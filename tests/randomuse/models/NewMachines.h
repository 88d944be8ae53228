#pragma once

#include "WidgetMachine.h"

namespace soak {

std::unique_ptr<WidgetMachine> newFrameMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newGridButtonMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newIndicatorMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newBatteryMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newSwitchMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newLineEditMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newKeypadFieldMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newCrumbsMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<WidgetMachine> newBrowserMachine(const std::shared_ptr<Stage>& stage);
std::unique_ptr<Machine> newLoopMachine();
/// One that breaks promises, crashes and warns, to test what looks for such.
std::unique_ptr<Machine> newFaultyMachine();

} // namespace soak
