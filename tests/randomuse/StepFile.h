#pragma once

#include "Machine.h"

#include <QStringList>

namespace soak {

/// Steps as text, one a line: the action's name and its argument.
QStringList toLines(const Steps& steps, const Machine& machine);
/// Lines that name no action of the machine are left out.
Steps fromLines(const QStringList& lines, const Machine& machine);

/// False, with a warning, if the file cannot be used.
bool writeLines(const QString& fileName, const QStringList& lines);
QStringList readLines(const QString& fileName);

} // namespace soak
