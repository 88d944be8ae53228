#pragma once

#include <QString>
#include <QVector>

#include <functional>

namespace bench {

/// One unit of work; it keeps alive what it works on and may be run any number of times.
using Work = std::function<void()>;

/// Makes a unit of work ready to be run.
using Setup = std::function<Work()>;

/// One line of the table: the same work done by the library, by Qt, and without any widget.
struct Row
{
    QString name;
    Setup ours;
    QString stockName; ///< What one would use instead.
    Setup stock; ///< May be empty.
    Setup floor; ///< The least that the work costs; may be empty.
};

/// Every row of the table, in its order.
QVector<Row> allRows();

} // namespace bench
