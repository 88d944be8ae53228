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
    rows += frameRows();
    rows += buttonRows();
    rows += scrollIndicatorRows();
    return rows;
}

} // namespace bench
