#pragma once

#include "Row.h"

namespace bench {

QVector<Row> buttonRows();
QVector<Row> frameRows();
QVector<Row> scrollIndicatorRows();

} // namespace bench
