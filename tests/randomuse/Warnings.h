#pragma once

#include <QStringList>

namespace soak {

/// Keeps what is said by qWarning() and worse from now on, for takeWarnings().
void collectWarnings();

/// What has been said since the last call.
QStringList takeWarnings();

} // namespace soak
