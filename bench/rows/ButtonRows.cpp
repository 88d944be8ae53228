#include "Painting.h"
#include "Rows.h"

#include <ui/CGridArrangedButton.h>

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace bench {

namespace {

constexpr int children = 6;
constexpr int columns = 2;

QLabel* label(int index)
{
    return new QLabel(QString::number(index));
}

std::shared_ptr<QWidget> gridButton()
{
    auto button = std::make_shared<ui::CGridArrangedButton>();
    for (int i = 0; i < children; ++i)
        button->addWidget(label(i), i / columns, i % columns);
    button->resize(button->sizeHint());
    return button;
}

/// The same by hand, with the size that the button itself does not ask for.
std::shared_ptr<QWidget> handmadeButton()
{
    auto button = std::make_shared<QPushButton>();
    auto* grid = new QGridLayout(button.get());
    for (int i = 0; i < children; ++i)
        grid->addWidget(label(i), i / columns, i % columns);
    button->resize(grid->totalSizeHint());
    return button;
}

/// The face of a button without a text, drawn by the style alone.
Work bareButton()
{
    const auto button = std::make_shared<QPushButton>();
    button->resize(gridButton()->size());
    return draw(button->size(), [button](QPainter& painter) {
        QStyleOptionButton option;
        option.initFrom(button.get());
        option.state |= QStyle::State_Raised;
        button->style()->drawControl(QStyle::CE_PushButton, &option, &painter, button.get());
    });
}

Work askHint(const std::shared_ptr<QWidget>& button)
{
    return [button] { button->sizeHint(); };
}

} // namespace

QVector<Row> buttonRows()
{
    const QString counterpart = QStringLiteral("QPushButton with a QGridLayout");
    return {
        {QStringLiteral("grid button, size hint"),
         [] { return askHint(gridButton()); },
         counterpart,
         [] { return askHint(handmadeButton()); },
         {}},
        {QStringLiteral("grid button"), [] { return paint(gridButton()); }, counterpart,
         [] { return paint(handmadeButton()); }, bareButton},
    };
}

} // namespace bench
