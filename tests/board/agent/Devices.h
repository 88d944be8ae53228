#pragma once

#include <string>
#include <vector>

/// Mounts what the kernel offers and loads the modules that /board/modules lists.
void setUpDevices();

/// The variables that tell Qt its screen and its input devices.
std::vector<std::string> inputEnvironment(const std::string& touchscreen);
