#pragma once

#include "ui/CBatteryStatusWidget.h"

#include <QtMath>

#include <cstring>

namespace test {

/**
 * The fields of a battery widget, in the order that is part of its binary interface.
 *
 * They have no getters; what they hold is read from the object itself.
 */
struct BatteryState
{
    explicit BatteryState(const ui::CBatteryStatusWidget& widget)
    {
        static_assert(sizeof(BatteryState) == sizeof(ui::CBatteryStatusWidget));
        std::memcpy(static_cast<void*>(this), static_cast<const void*>(&widget), sizeof(*this));
    }

    alignas(QWidget) unsigned char base[sizeof(QWidget)];
    int frameWidth;
    double cornerRadius;
    int flags;
    double charge;
    QRect body;
    QRect top;
    QRect bolt;
    void* fillBrush;
};

/// Where the three rectangles belong, computed step by step from the rule.
struct BatteryLayout
{
    BatteryLayout(const QRect& contents, int frameWidth)
    {
        const int cw = contents.width();
        const int ch = contents.height();
        const int w = qRound((ch - frameWidth) / 1.7134955147666626 + frameWidth);
        const int bw = qMin(w, cw) - 2 * frameWidth;
        const int topW = qRound(bw / 3.236);
        const int bodyH = qRound(bw * 1.618);
        const int topH = qRound(topW / 3.236);
        const int total = bodyH + topH + frameWidth;
        const int y0 = contents.y() + (ch - total) / 2;
        const int topX = contents.x() + (cw - (frameWidth + topW)) / 2 + frameWidth / 2;
        const int bodyX = contents.x() + (cw - (frameWidth + bw)) / 2 + frameWidth / 2;
        const int boltW = qRound(bw / 1.618);
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
