#pragma once

#include <QMargins>
#include <QRect>

/// Where the parts of a switch lie, in widget coordinates. Absurd measures are bounded, so nothing
/// overflows.
class SwitchGeometry
{
public:
    SwitchGeometry(int height, const QMargins& margin);

    QSize indicatorSize() const;
    QRect indicatorRect(int widgetWidth, Qt::LayoutDirection direction) const;
    QRect textRect(const QSize& widget, Qt::LayoutDirection direction) const;
    QRectF trackRect(const QRect& indicator) const;

    /// How far the left edge of the thumb's room is moved at rest: right when on, left when off.
    int travel() const;

    /// The thumb position at the on end; that of the off end is 0.
    int onPosition() const;

private:
    int m_height;
    QMargins m_margin;
};
