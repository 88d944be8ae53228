#pragma once

#include "Machine.h"

#include <QStringList>

#include <memory>

namespace soak {

/// One for each widget, and "together" for all of them in one window.
QStringList machineNames();

/// Null if there is none of that name.
std::unique_ptr<Machine> newMachine(const QString& name);

} // namespace soak
