#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace bench {

/// Shows the widgets together in a window, and prints how often the event loop wakes up while
/// nothing happens: in how many milliseconds (the one argument), how often, and how often with an
/// empty window.
void countWakeUps(const QStringList& arguments, QTextStream& out);

} // namespace bench
