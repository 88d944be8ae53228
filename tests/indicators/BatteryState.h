#pragma once

#include "PrivateFields.h"
#include "QtVersions.h"

#include <ui/CBatteryStatusWidget.h>

#include <QVector>

namespace test {

struct BatteryFields
{
    friend auto fieldsOf(BatteryFields);
};
template struct PrivateFields<
    BatteryFields, &ui::CBatteryStatusWidget::m_frameWidth,
    &ui::CBatteryStatusWidget::m_cornerRadius, &ui::CBatteryStatusWidget::m_flags,
    &ui::CBatteryStatusWidget::m_charge, &ui::CBatteryStatusWidget::m_batteryRect,
    &ui::CBatteryStatusWidget::m_topRect, &ui::CBatteryStatusWidget::m_chargingIconRect,
    &ui::CBatteryStatusWidget::m_fillBrush>;

/// What the fields of a battery hold: they have no getters.
struct BatteryState
{
    explicit BatteryState(const ui::CBatteryStatusWidget& widget)
    {
        const auto fields = fieldsOf(BatteryFields());
        frameWidth = widget.*std::get<0>(fields);
        cornerRadius = widget.*std::get<1>(fields);
        flags = widget.*std::get<2>(fields);
        charge = widget.*std::get<3>(fields);
        body = widget.*std::get<4>(fields);
        top = widget.*std::get<5>(fields);
        bolt = widget.*std::get<6>(fields);
        QBrush brush = widget.*std::get<7>(fields);
        fillBrush = brush.data_ptr().get();
    }

    int frameWidth;
    double cornerRadius;
    int flags;
    double charge;
    QRect body;
    QRect top;
    QRect bolt;
    const void* fillBrush; ///< The brush's data, to see whether it is another.
};

/// Where the fields lie in the object, in bytes, in the order of their declaration.
inline QVector<qintptr> fieldOffsets(const ui::CBatteryStatusWidget& widget)
{
    const auto offset = [&widget](const auto& field) {
        return reinterpret_cast<qintptr>(&field) - reinterpret_cast<qintptr>(&widget);
    };
    return std::apply([&](auto... fields) { return QVector<qintptr>{offset(widget.*fields)...}; },
                      fieldsOf(BatteryFields()));
}

/// Where the three rectangles belong, computed step by step from the rule.
struct BatteryLayout
{
    BatteryLayout(const QRect& contents, int frameWidth)
    {
        const int cw = contents.width();
        const int ch = contents.height();
        const int w = roundedHalfUp((ch - frameWidth) / 1.7134955147666626 + frameWidth);
        const int bw = qMin(w, cw) - 2 * frameWidth;
        const int topW = roundedHalfUp(bw / 3.236);
        const int bodyH = roundedHalfUp(bw * 1.618);
        const int topH = roundedHalfUp(topW / 3.236);
        const int total = bodyH + topH + frameWidth;
        const int y0 = contents.y() + (ch - total) / 2;
        const int topX = contents.x() + (cw - (frameWidth + topW)) / 2 + frameWidth / 2;
        const int bodyX = contents.x() + (cw - (frameWidth + bw)) / 2 + frameWidth / 2;
        const int boltW = roundedHalfUp(bw / 1.618);
        top = QRect(topX, y0, topW, topH);
        body = QRect(bodyX, y0 + topH, bw, bodyH);
        bolt = QRect(bodyX + (bw - boltW) / 2 + frameWidth,
                     y0 + topH + (bodyH - bw) / 2 + frameWidth, boltW, bw);
    }

    QRect body;
    QRect top;
    QRect bolt;
};

} // namespace test
