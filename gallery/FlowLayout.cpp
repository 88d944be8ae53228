#include "FlowLayout.h"

#include <QStyle>
#include <QWidget>

FlowLayout::FlowLayout(QWidget* parent)
    : QLayout(parent)
{
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

int FlowLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[size_t(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* item = m_items[size_t(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    QRect used;
    for (const QRect& rect : arranged(QRect(0, 0, width, 0).marginsRemoved(margins)))
        used |= rect; // cppcheck-suppress useStlAlgorithm ; longer with it
    return used.isNull() ? 0 : used.height() + margins.top() + margins.bottom();
}

/// As wide as the widest item: the others go below.
QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    }
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

/// As wide as one row.
QSize FlowLayout::sizeHint() const
{
    QSize size;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        size = QSize(size.width() + hint.width() + spacing(), qMax(size.height(), hint.height()));
    }
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const QRect room = rect.marginsRemoved(contentsMargins());
    const std::vector<QRect> rects = arranged(room);
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    for (size_t i = 0; i < m_items.size(); ++i) {
        if (!rects[i].isNull())
            m_items[i]->setGeometry(QStyle::visualRect(direction, room, rects[i]));
    }
}

std::vector<QRect> FlowLayout::arranged(const QRect& room) const
{
    std::vector<QRect> rects;
    QPoint corner = room.topLeft();
    int rowHeight = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty()) {
            rects.emplace_back();
            continue;
        }
        const QSize size = item->sizeHint().boundedTo(QSize(room.width(), QWIDGETSIZE_MAX));
        if (corner.x() > room.left() && corner.x() + size.width() > room.left() + room.width()) {
            corner = QPoint(room.left(), corner.y() + rowHeight + spacing());
            rowHeight = 0;
        }
        rects.emplace_back(corner, size);
        corner.rx() += size.width() + spacing();
        rowHeight = qMax(rowHeight, size.height());
    }
    return rects;
}
