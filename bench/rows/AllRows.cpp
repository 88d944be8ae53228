#include "Rows.h"

#include "Painting.h"

#include <QPainter>
#include <QRegularExpression>
#include <QWidget>

namespace bench {

namespace {

class PainterOnly : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        const QPainter painter(this);
    }
};

/// What Qt's dispatch of a paint event to one widget costs beside the drawing: the difference
/// between this row's columns is taken off every painted row.
Row dispatchRow()
{
    const QSize size(200, 100);
    const Setup widget = [size] {
        auto shown = std::make_shared<PainterOnly>();
        shown->resize(size);
        return paint(shown);
    };
    const Setup image = [size] { return draw(size, [](QPainter&) {}); };
    return {QStringLiteral("Qt's dispatch: a painter that draws nothing"), widget, {}, {}, image};
}

QVector<Row> allRows()
{
    QVector<Row> result;
    for (auto* family : {frameRows, switchRows, batteryRows, scrollIndicatorRows, buttonRows,
                         textRows, keypadRows, crowdRows})
        result += family();
#ifdef BENCH_PEERS
    result += peerRows();
#endif
    return result;
}

} // namespace

QVector<Row> rows(const QString& filter)
{
    const QRegularExpression expression(filter);
    const QVector<Row> all = allRows();
    QVector<Row> result = {dispatchRow()};
    for (const Row& row : all) {
        if (expression.match(row.name).hasMatch())
            result.append(row);
    }
    return result;
}

} // namespace bench
