#pragma once

#include <string>
#include <vector>

/// The whole content of a file, empty if it cannot be read.
std::string readFile(const std::string& path);

/// The names in a folder, without those that begin with a dot.
std::vector<std::string> entriesOf(const std::string& folder);
