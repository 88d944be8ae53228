#include "ui/CGridArrangedButton.h"

#include <QGridLayout>

#include <limits>

namespace ui {

namespace {

/// QGridLayout checks no index and keeps something for every row and column up to the last one, so
/// that thousands of them take seconds to lay out.
constexpr int indexLimit = 1000;

/// QGridLayout adds up the stretches of all rows or columns, and may hang if an int cannot hold the
/// sum.
constexpr int stretchLimit = std::numeric_limits<int>::max() / indexLimit;

int boundedStretch(int stretch)
{
    return qBound(-stretchLimit, stretch, stretchLimit);
}

bool isIndex(int index)
{
    return index >= 0 && index < indexLimit;
}

bool isRange(int first, int span)
{
    return isIndex(first) && span <= indexLimit - first;
}

bool acceptsIndex(int index, const char* function)
{
    if (!isIndex(index))
        qWarning("CGridArrangedButton::%s: no such row or column: %d", function, index);
    return isIndex(index);
}

bool acceptsCells(int row, int column, int rowSpan, int columnSpan, const char* function)
{
    const bool accepted = isRange(row, rowSpan) && isRange(column, columnSpan);
    if (!accepted) {
        qWarning("CGridArrangedButton::%s: no such cells: row %d, column %d, %d by %d", function,
                 row, column, rowSpan, columnSpan);
    }
    return accepted;
}

bool contains(const QWidget* outer, const QWidget* inner)
{
    while (inner && inner != outer)
        inner = inner->parentWidget();
    return inner;
}

bool acceptsWidget(const QWidget* widget, const QWidget& button)
{
    if (!widget)
        qWarning("CGridArrangedButton::addWidget: cannot add a null widget");
    else if (contains(widget, &button))
        qWarning("CGridArrangedButton::addWidget: cannot add a widget that contains the button");
    else
        return true;
    return false;
}

/// Whether something else is going to delete \a item, or \a grid twice. A layout that is a child of
/// the grid before it is in a cell is as QGridLayout::addLayout() would leave it.
bool hasOwner(QLayoutItem& item, const QGridLayout& grid)
{
    const QLayout* layout = item.layout();
    const QObject* parent = layout ? layout->parent() : nullptr;
    return grid.indexOf(&item) >= 0 || (parent && parent != &grid);
}

bool acceptsItem(QLayoutItem* item, const QGridLayout& grid, const QWidget& button)
{
    if (!item)
        qWarning("CGridArrangedButton::addItem: cannot add a null item");
    else if (hasOwner(*item, grid))
        qWarning("CGridArrangedButton::addItem: cannot add an item that has an owner");
    else if (contains(item->widget(), &button))
        qWarning("CGridArrangedButton::addItem: cannot add an item that contains the button");
    else
        return true;
    return false;
}

/// Whether \a grid still lays \a button out: by way of QWidget::layout() an application may have
/// deleted it, moved it to another widget, or put another layout in its place and at its address.
bool laysOut(const QGridLayout* grid, const QWidget& button)
{
    return grid == qobject_cast<QGridLayout*>(button.layout());
}

bool acceptsCalls(const QGridLayout* grid, const QWidget& button, const char* function)
{
    const bool accepted = laysOut(grid, button);
    if (!accepted)
        qWarning("CGridArrangedButton::%s: the button has lost its grid", function);
    return accepted;
}

} // namespace

CGridArrangedButton::CGridArrangedButton(QWidget* parent)
    : QPushButton(parent)
    , m_gridLayout(nullptr)
{
    create();
}

CGridArrangedButton::CGridArrangedButton(QString const& text, QWidget* parent)
    : QPushButton(text, parent)
    , m_gridLayout(nullptr)
{
    create();
}

CGridArrangedButton::CGridArrangedButton(QIcon const& icon, QString const& text, QWidget* parent)
    : QPushButton(icon, text, parent)
    , m_gridLayout(nullptr)
{
    create();
}

CGridArrangedButton::~CGridArrangedButton() = default;

QSize CGridArrangedButton::sizeHint() const
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the grid's hint, which QPushButton leaves out
    return QPushButton::sizeHint().expandedTo(QWidget::sizeHint());
}

QSize CGridArrangedButton::minimumSizeHint() const
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the grid's hint, which QPushButton leaves out
    return QPushButton::minimumSizeHint().expandedTo(QWidget::minimumSizeHint());
}

void CGridArrangedButton::addWidget(QWidget* widget, int row, int column,
                                    QFlags<Qt::AlignmentFlag> alignment)
{
    if (!acceptsCalls(m_gridLayout, *this, __func__) || !acceptsWidget(widget, *this)
        || !acceptsCells(row, column, 1, 1, __func__))
        return;
    // mutant [dropped]: The grid makes the button the parent of its widgets as well.
    widget->setParent(this);
    m_gridLayout->addWidget(widget, row, column, alignment);
}

void CGridArrangedButton::addWidget(QWidget* widget, int row, int column, int rowSpan,
                                    int columnSpan, QFlags<Qt::AlignmentFlag> alignment)
{
    if (!acceptsCalls(m_gridLayout, *this, __func__) || !acceptsWidget(widget, *this)
        || !acceptsCells(row, column, rowSpan, columnSpan, __func__))
        return;
    // mutant [dropped]: The grid makes the button the parent of its widgets as well.
    widget->setParent(this);
    m_gridLayout->addWidget(widget, row, column, rowSpan, columnSpan, alignment);
}

void CGridArrangedButton::addItem(QLayoutItem* item, int row, int column, int rowSpan,
                                  int columnSpan, QFlags<Qt::AlignmentFlag> alignment)
{
    if (acceptsCalls(m_gridLayout, *this, __func__) && acceptsItem(item, *m_gridLayout, *this)
        && acceptsCells(row, column, rowSpan, columnSpan, __func__))
        m_gridLayout->addItem(item, row, column, rowSpan, columnSpan, alignment);
}

void CGridArrangedButton::setColumnMinimumWidth(int column, int minSize)
{
    if (acceptsCalls(m_gridLayout, *this, __func__) && acceptsIndex(column, __func__))
        m_gridLayout->setColumnMinimumWidth(column, minSize);
}

int CGridArrangedButton::columnStretch(int column) const
{
    const bool exists =
        // mutant [0 -> (-1); < -> <=]: Reads outside of Qt's array, which no test can see in a Qt
        // without assertions.
        laysOut(m_gridLayout, *this) && column >= 0 && column < m_gridLayout->columnCount();
    return exists ? m_gridLayout->columnStretch(column) : 0;
}

void CGridArrangedButton::setColumnStretch(int column, int stretch)
{
    if (acceptsCalls(m_gridLayout, *this, __func__) && acceptsIndex(column, __func__))
        m_gridLayout->setColumnStretch(column, boundedStretch(stretch));
}

void CGridArrangedButton::setRowMinimumHeight(int row, int minSize)
{
    if (acceptsCalls(m_gridLayout, *this, __func__) && acceptsIndex(row, __func__))
        m_gridLayout->setRowMinimumHeight(row, minSize);
}

void CGridArrangedButton::setRowStretch(int row, int stretch)
{
    if (acceptsCalls(m_gridLayout, *this, __func__) && acceptsIndex(row, __func__))
        m_gridLayout->setRowStretch(row, boundedStretch(stretch));
}

void CGridArrangedButton::setSpacing(int spacing)
{
    if (acceptsCalls(m_gridLayout, *this, __func__))
        m_gridLayout->setSpacing(spacing);
}

void CGridArrangedButton::setHorizontalSpacing(int spacing)
{
    if (acceptsCalls(m_gridLayout, *this, __func__))
        m_gridLayout->setHorizontalSpacing(spacing);
}

void CGridArrangedButton::setVerticalSpacing(int spacing)
{
    if (acceptsCalls(m_gridLayout, *this, __func__))
        m_gridLayout->setVerticalSpacing(spacing);
}

void CGridArrangedButton::setContentsMargins(int left, int top, int right, int bottom)
{
    if (acceptsCalls(m_gridLayout, *this, __func__))
        m_gridLayout->setContentsMargins(left, top, right, bottom);
}

void CGridArrangedButton::create()
{
    m_gridLayout = new QGridLayout(this);
    // mutant [dropped]: A layout made with a widget as its parent is that widget's layout already.
    setLayout(m_gridLayout);
}

} // namespace ui
