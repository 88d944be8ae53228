#pragma once

#include "Row.h"

namespace bench {

QVector<Row> batteryRows();
QVector<Row> buttonRows();
QVector<Row> crowdRows();
QVector<Row> frameRows();
QVector<Row> keypadRows();
QVector<Row> scrollIndicatorRows();
QVector<Row> switchRows();
QVector<Row> textRows();

} // namespace bench
