#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace bench {

/**
 * Opens a directory, and prints what it took: milliseconds until the first screenful was painted,
 * until all files were shown, of the longest block of the event loop, and of processor time, and
 * kilobytes of memory.
 *
 * \a arguments are how (bare, ours or dialog), the directory, and how many files are in it. Once in
 * a process, as one opening leaves memory for the next.
 */
void browse(const QStringList& arguments, QTextStream& out);

} // namespace bench
