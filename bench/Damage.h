#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace bench {

/// Prints, for changes to widgets, how many of their pixels are painted anew, beside their Qt
/// counterparts.
void compareDamage(const QStringList& arguments, QTextStream& out);

} // namespace bench
