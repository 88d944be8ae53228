#include "Rows.h"

#include "Painting.h"

#include <QWidget>

namespace bench {

namespace {

/// What Qt's dispatch of a paint event to one widget costs: to be taken off every painted row.
Row dispatchRow()
{
    const Setup emptyWidget = [] {
        auto widget = std::make_shared<QWidget>();
        widget->resize(200, 100);
        return paint(widget);
    };
    return {QStringLiteral("paint an empty widget (Qt's dispatch)"), emptyWidget, {}, {}, {}};
}

} // namespace

QVector<Row> allRows()
{
    QVector<Row> rows = {dispatchRow()};
    for (auto* family :
         {frameRows, switchRows, batteryRows, scrollIndicatorRows, buttonRows, textRows, lifeRows})
        rows += family();
    return rows;
}

} // namespace bench
