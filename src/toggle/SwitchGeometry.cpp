#include "SwitchGeometry.h"

#include <QWidget>

namespace {

constexpr int trackInset = 2; // at the top and bottom, on top of the margins
constexpr int extraTravel = 2; // on top of the horizontal margins

int bounded(int length)
{
    return qBound(-QWIDGETSIZE_MAX, length, QWIDGETSIZE_MAX);
}

} // namespace

SwitchGeometry::SwitchGeometry(int height, const QMargins& margin)
    : m_height(bounded(height))
    , m_margin(bounded(margin.left()), bounded(margin.top()), bounded(margin.right()),
               bounded(margin.bottom()))
{
}

QSize SwitchGeometry::indicatorSize() const
{
    return {m_height + m_margin.left() + m_margin.right(), m_height};
}

QRect SwitchGeometry::indicatorRect(int widgetWidth, Qt::LayoutDirection direction) const
{
    const QSize size = indicatorSize();
    const int left = direction == Qt::LeftToRight ? 0 : widgetWidth - size.width();
    return {QPoint(left, 0), size};
}

QRect SwitchGeometry::textRect(const QSize& widget, Qt::LayoutDirection direction) const
{
    const int indicatorWidth = indicatorSize().width();
    const int left = direction == Qt::LeftToRight ? indicatorWidth : 0;
    return {left, 0, widget.width() - indicatorWidth, widget.height()};
}

QRectF SwitchGeometry::trackRect(const QRect& indicator) const
{
    return indicator.marginsRemoved(m_margin).adjusted(0, trackInset, 0, -trackInset);
}

int SwitchGeometry::travel() const
{
    return m_margin.left() + m_margin.right() + extraTravel;
}

int SwitchGeometry::onPosition() const
{
    return 2 * travel();
}
