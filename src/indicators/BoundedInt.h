#pragma once

#include <QtGlobal>

namespace ui {

/**
 * Far beyond any screen, and small enough that sums and differences of two coordinates, as QRect and
 * QPainter make them, fit an int. Within it arithmetic is exact; beyond it results stay at its end.
 */
constexpr int coordinateLimit = 1 << 29;

/// \a value kept within the limit.
inline int bounded(qint64 value)
{
    return int(qBound<qint64>(-coordinateLimit, value, coordinateLimit));
}

/// \a value rounded, halves upwards, and kept within the limit.
inline int boundedRound(double value)
{
    return qRound(qBound<double>(-coordinateLimit, value, coordinateLimit));
}

} // namespace ui
