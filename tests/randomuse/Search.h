#pragma once

#include <QString>

namespace soak {

/**
 * Plays \a count random steps of \a widget's machine in a process of \a program. Returns an empty
 * text if every promise was kept, else a report with the seed, what broke and the fewest steps that
 * break it.
 */
QString search(const QString& program, const QString& widget, quint32 seed, int count);

} // namespace soak
