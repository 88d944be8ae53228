#pragma once

#include <QPalette>

namespace test {

QPalette lightPalette();
QPalette darkPalette();

/// Distinct colours in every role and group, to see which role a widget reads.
QPalette telltalePalette();

} // namespace test
