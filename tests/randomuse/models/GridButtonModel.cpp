#include "Models.h"

#include <ui/CGridArrangedButton.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

using ui::CGridArrangedButton;

namespace test {

namespace {

constexpr int indexLimit = 1000;
constexpr int maxCells = 12; // the columns and rows of the ordinary uses
constexpr int maxChildren = 20;
constexpr int largestButton = 1000;
constexpr int maxLength = 2000; // of a cell; Qt adds lengths up without looking

/// The children and the stretches of a grid button, which must be as large as its grid.
class GridButtonModel : public WidgetModel
{
public:
    explicit GridButtonModel(const std::shared_ptr<TestWindows>& windows);

    bool expectsWarning(const QString& warning) const override;

protected:
    QWidget* create() override;
    void checkState() override;

private:
    CGridArrangedButton& button()
    {
        return static_cast<CGridArrangedButton&>(*widget());
    }
    static int index(Values& values);
    static bool isIndex(int index);
    void removeExcessChild();
    void addChild(Values& values);
    void addSpanningChild(Values& values);
    void addItem(Values& values);
    void setStretch(Values& values);
    void setSpacing(Values& values);

    QVector<QPointer<QWidget>> m_children;
    QHash<int, int> m_stretches;
};

GridButtonModel::GridButtonModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    add("addWidget", 3, [this](Values& v) {
        removeExcessChild();
        addChild(v);
    });
    add("addSpanningWidget", 2, [this](Values& v) {
        removeExcessChild();
        addSpanningChild(v);
    });
    add("addItem", 1, [this](Values& v) { addItem(v); });
    add("addNull", 1, [this](Values& v) {
        button().addWidget(nullptr, v.integer(), v.integer());
        button().addItem(nullptr, v.integer(), v.integer());
        button().addWidget(&button(), 0, 0);
        if (!button().isWindow())
            button().addWidget(button().parentWidget(), 0, 0);
    });
    add("deleteChild", 3, [this](Values& v) {
        if (!m_children.isEmpty())
            delete m_children.takeAt(v.below(m_children.size()));
    });
    add("setColumnMinimumWidth", 1, [this](Values& v) {
        const int column = index(v);
        button().setColumnMinimumWidth(column, v.below(maxLength));
    });
    add("setRowMinimumHeight", 1,
        [this](Values& v) { button().setRowMinimumHeight(index(v), v.below(maxLength)); });
    add("setColumnStretch", 2, [this](Values& v) { setStretch(v); });
    add("setRowStretch", 1, [this](Values& v) { button().setRowStretch(index(v), v.integer()); });
    add("setSpacing", 2, [this](Values& v) { setSpacing(v); });
    add("setContentsMargins", 1, [this](Values& v) {
        const int margin = v.below(40);
        button().setContentsMargins(margin, 1, 2, 3);
        compare("grid margins", button().layout()->contentsMargins(), QMargins(margin, 1, 2, 3));
    });
    add("setText", 1, [this](Values& v) { button().setText(v.text()); });
    addAllCommands(*this);
}

bool GridButtonModel::expectsWarning(const QString& warning) const
{
    return warning.startsWith(QLatin1String("CGridArrangedButton::"))
        || WidgetModel::expectsWarning(warning);
}

QWidget* GridButtonModel::create()
{
    m_children.clear();
    m_stretches.clear();
    auto* button = new CGridArrangedButton(QStringLiteral("grid"));
    // Qt's style keeps a picture of the whole button, and a window takes memory for all its pixels:
    // neither may become as large as the grid wants to be.
    button->setMaximumSize(largestButton, largestButton);
    button->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    return button;
}

/// Mostly of the first rows and columns.
int GridButtonModel::index(Values& values)
{
    return values.below(8) > 0 ? values.below(maxCells) : values.integer();
}

bool GridButtonModel::isIndex(int index)
{
    return index >= 0 && index < indexLimit;
}

void GridButtonModel::removeExcessChild()
{
    if (m_children.size() >= maxChildren)
        delete m_children.takeFirst();
}

void GridButtonModel::addChild(Values& values)
{
    const int row = index(values);
    const int column = index(values);
    auto* child = new QLabel(values.text());
    button().addWidget(child, row, column);
    if (isIndex(row) && isIndex(column)) {
        m_children.append(child);
        return;
    }
    expect(!child->parent(), "a refused widget is left alone");
    delete child;
}

void GridButtonModel::addSpanningChild(Values& values)
{
    auto* child = new QWidget;
    child->setMinimumSize(values.below(50), values.below(50));
    const int row = values.below(maxCells);
    const int column = values.below(maxCells);
    const int rows = values.oneOf({-1, 1, 3});
    button().addWidget(child, row, column, rows, values.oneOf({-1, 1, 2, 5}),
                       values.oneOf({Qt::Alignment(), Qt::Alignment(Qt::AlignCenter)}));
    m_children.append(child);
}

void GridButtonModel::addItem(Values& values)
{
    const int row = index(values);
    const int column = index(values);
    auto* spacer = new QSpacerItem(values.below(30), values.below(30));
    QLayoutItem* item = spacer;
    if (row % 2) {
        auto* nested = new QHBoxLayout;
        nested->setParent(button().layout());
        nested->addItem(spacer);
        item = nested;
    }
    const int before = button().layout()->count();
    button().addItem(item, row, column);
    const bool added = isIndex(row) && isIndex(column);
    compare("items", button().layout()->count(), before + added);
    if (!added)
        delete item;
}

void GridButtonModel::setStretch(Values& values)
{
    const int column = index(values);
    const int stretch = values.below(1000);
    button().setColumnStretch(column, stretch);
    if (!isIndex(column))
        return;
    m_stretches[column] = stretch;
}

void GridButtonModel::setSpacing(Values& values)
{
    const int spacing = values.oneOf({-1, 0, 3, 50});
    button().setSpacing(spacing);
    if (values.boolean())
        button().setHorizontalSpacing(values.below(20));
    if (values.boolean())
        button().setVerticalSpacing(values.below(20));
}

void GridButtonModel::checkState()
{
    for (const QPointer<QWidget>& child : m_children)
        expect(child && child->parentWidget() == &button(), "children belong to the button");
    for (const int column : {-1, 0, 1, maxCells - 1, maxCells, indexLimit, 1 << 30})
        compare("columnStretch", button().columnStretch(column), m_stretches.value(column));
    const QSize grid = button().layout()->totalSizeHint();
    const QSize hint = button().sizeHint();
    expect(hint.expandedTo(grid) == hint, "the size hint holds the grid");
    const QSize least = button().minimumSizeHint();
    expect(least.expandedTo(button().layout()->totalMinimumSize()) == least,
           "the minimum size hint holds the grid");
}

} // namespace

std::unique_ptr<WidgetModel> newGridButtonModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<GridButtonModel>(windows);
}

} // namespace test
