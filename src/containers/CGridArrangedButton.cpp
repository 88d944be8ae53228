#include "ui/CGridArrangedButton.h"

#include <QGridLayout>

namespace ui {

namespace {

/// QGridLayout checks no index and keeps something for every row and column up to the last one, so
/// that thousands of them take seconds to lay out.
constexpr int indexLimit = 1000;

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

bool acceptsWidget(const QWidget* widget, const QWidget* button)
{
    if (!widget)
        qWarning("CGridArrangedButton::addWidget: cannot add a null widget");
    else if (contains(widget, button))
        qWarning("CGridArrangedButton::addWidget: cannot add a widget that contains the button");
    else
        return true;
    return false;
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
    if (!acceptsWidget(widget, this) || !acceptsCells(row, column, 1, 1, "addWidget"))
        return;
    widget->setParent(this);
    m_gridLayout->addWidget(widget, row, column, alignment);
}

void CGridArrangedButton::addWidget(QWidget* widget, int row, int column, int rowSpan,
                                    int columnSpan, QFlags<Qt::AlignmentFlag> alignment)
{
    if (!acceptsWidget(widget, this)
        || !acceptsCells(row, column, rowSpan, columnSpan, "addWidget"))
        return;
    widget->setParent(this);
    m_gridLayout->addWidget(widget, row, column, rowSpan, columnSpan, alignment);
}

void CGridArrangedButton::addItem(QLayoutItem* item, int row, int column, int rowSpan,
                                  int columnSpan, QFlags<Qt::AlignmentFlag> alignment)
{
    if (!item) {
        qWarning("CGridArrangedButton::addItem: cannot add a null item");
        return;
    }
    if (acceptsCells(row, column, rowSpan, columnSpan, "addItem"))
        m_gridLayout->addItem(item, row, column, rowSpan, columnSpan, alignment);
}

void CGridArrangedButton::setColumnMinimumWidth(int column, int minSize)
{
    if (acceptsIndex(column, "setColumnMinimumWidth"))
        m_gridLayout->setColumnMinimumWidth(column, minSize);
}

int CGridArrangedButton::columnStretch(int column) const
{
    const bool exists = column >= 0 && column < m_gridLayout->columnCount();
    return exists ? m_gridLayout->columnStretch(column) : 0;
}

void CGridArrangedButton::setColumnStretch(int column, int stretch)
{
    if (acceptsIndex(column, "setColumnStretch"))
        m_gridLayout->setColumnStretch(column, stretch);
}

void CGridArrangedButton::setRowMinimumHeight(int row, int minSize)
{
    if (acceptsIndex(row, "setRowMinimumHeight"))
        m_gridLayout->setRowMinimumHeight(row, minSize);
}

void CGridArrangedButton::setRowStretch(int row, int stretch)
{
    if (acceptsIndex(row, "setRowStretch"))
        m_gridLayout->setRowStretch(row, stretch);
}

void CGridArrangedButton::setSpacing(int spacing)
{
    m_gridLayout->setSpacing(spacing);
}

void CGridArrangedButton::setHorizontalSpacing(int spacing)
{
    m_gridLayout->setHorizontalSpacing(spacing);
}

void CGridArrangedButton::setVerticalSpacing(int spacing)
{
    m_gridLayout->setVerticalSpacing(spacing);
}

void CGridArrangedButton::setContentsMargins(int left, int top, int right, int bottom)
{
    m_gridLayout->setContentsMargins(left, top, right, bottom);
}

void CGridArrangedButton::create()
{
    m_gridLayout = new QGridLayout(this);
    setLayout(m_gridLayout);
}

} // namespace ui
