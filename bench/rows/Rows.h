#pragma once

#include "Row.h"

namespace bench {

QVector<Row> batteryRows();
QVector<Row> buttonRows();
QVector<Row> frameRows();
QVector<Row> lifeRows();
QVector<Row> scrollIndicatorRows();
QVector<Row> switchRows();
QVector<Row> textRows();

} // namespace bench
