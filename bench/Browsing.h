#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace bench {

/// Opens directories of many files in the file browser and in what one would use instead, and prints a table.
void compareBrowsing(QTextStream& out);

} // namespace bench
