#pragma once

#include "Row.h"

namespace bench {

QVector<Row> batteryRows();
QVector<Row> buttonRows();
QVector<Row> crowdRows();
QVector<Row> frameRows();
QVector<Row> keypadRows();
QVector<Row> peerRows(); ///< Only in a build with the peers.
QVector<Row> scrollIndicatorRows();
QVector<Row> switchRows();
QVector<Row> textRows();

} // namespace bench
