#include "Painting.h"
#include "Rows.h"
#include "Shown.h"

#include <ui/CBatteryStatusWidget.h>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QProgressBar>

namespace bench {

namespace {

const QSize batterySize(40, 80);
const QRect body(4, 13, 32, 52); // where a battery of that size has its body
const QRect terminal(15, 10, 10, 3);

std::shared_ptr<ui::CBatteryStatusWidget> battery(int percent, bool charging)
{
    auto result = std::make_shared<ui::CBatteryStatusWidget>();
    result->resize(batterySize);
    result->setChargePercentage(percent);
    result->setBatteryCharging(charging);
    return result;
}

void setUp(QProgressBar& bar)
{
    bar.setOrientation(Qt::Vertical);
    bar.setTextVisible(false);
    bar.resize(batterySize);
}

std::shared_ptr<QProgressBar> progressBar(int percent)
{
    auto result = std::make_shared<QProgressBar>();
    setUp(*result);
    result->setValue(percent);
    return result;
}

QBrush gradient(const QColor& from, const QColor& to)
{
    QLinearGradient result(0, 1, 1, 0);
    result.setCoordinateMode(QGradient::ObjectBoundingMode);
    result.setColorAt(0, from);
    result.setColorAt(1, to);
    return result;
}

void drawBattery(QPainter& painter, const QBrush& fill)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(6, 38, 28, 25), fill);
    painter.setPen(QPen(QBrush(Qt::black), 4, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRoundedRect(QRectF(body), 6.472, 6.472);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRectF(terminal), 6.472, 6.472);
}

void drawBolt(QPainter& painter, const QBrush& brush)
{
    QPainterPath path(QPointF(14, 58));
    for (const QPointF& point :
         {QPointF(22, 41.4), QPointF(16, 41.4), QPointF(22, 27), QPointF(32, 27), QPointF(26, 39.4),
          QPointF(33, 39.4), QPointF(14, 58)})
        path.lineTo(point);
    painter.setPen(QPen(QBrush(Qt::darkYellow), 2, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(brush);
    painter.drawPath(path);
}

Work bareBattery(bool charging)
{
    const QBrush fill = gradient(Qt::darkBlue, Qt::blue);
    const QBrush bolt = gradient(Qt::darkYellow, Qt::yellow);
    return draw(batterySize, [charging, fill, bolt](QPainter& painter) {
        drawBattery(painter, fill);
        if (charging)
            drawBolt(painter, bolt);
    });
}

/// From 0 to 100 by one percent after the other.
Work chargeRun()
{
    const auto battery = std::make_shared<Shown<ui::CBatteryStatusWidget>>(batterySize);
    return [battery] {
        for (int percent = 0; percent <= 100; ++percent) {
            (*battery)->setChargePercentage(percent);
            deliverEvents();
        }
    };
}

Work progressRun()
{
    const auto bar = std::make_shared<Shown<QProgressBar>>(batterySize);
    setUp(**bar);
    return [bar] {
        for (int percent = 0; percent <= 100; ++percent) {
            (*bar)->setValue(percent);
            deliverEvents();
        }
    };
}

} // namespace

QVector<Row> batteryRows()
{
    const QString counterpart = QStringLiteral("QProgressBar");
    const Setup halfFullBar = [] { return paint(progressBar(50)); };
    return {
        {QStringLiteral("battery"), [] { return paint(battery(50, false)); }, counterpart,
         halfFullBar, [] { return bareBattery(false); }},
        {QStringLiteral("battery, charging"), [] { return paint(battery(50, true)); }, counterpart,
         halfFullBar, [] { return bareBattery(true); }},
        {QStringLiteral("battery, a charge from 0 to 100"),
         chargeRun,
         counterpart,
         progressRun,
         {}},
    };
}

} // namespace bench
