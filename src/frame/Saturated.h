#pragma once

#include <QtGlobal>

#include <algorithm>
#include <limits>

namespace ui {

/// \a value, or the nearest int if it is out of range.
inline int saturated(qint64 value)
{
    using Limits = std::numeric_limits<int>;
    return int(std::clamp(value, qint64(Limits::min()), qint64(Limits::max())));
}

} // namespace ui
