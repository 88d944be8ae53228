#include "scenes/EdgesScene.h"

#include <ui/KeypadLineEdit.h>

#include <QGridLayout>

EdgesScene::EdgesScene()
{
    static const QStringList rows = {QStringLiteral("top"), QStringLiteral("middle"),
                                     QStringLiteral("bottom")};
    static const QStringList columns = {QStringLiteral("left"), QStringLiteral("centre"),
                                        QStringLiteral("right")};
    constexpr Qt::Alignment vertical[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
    constexpr Qt::Alignment horizontal[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < columns.size(); ++column) {
            auto* field = new ui::KeypadLineEdit(this, ui::keyboard::KeyboardType::Integer);
            field->setObjectName(rows.at(row) + QLatin1Char(' ') + columns.at(column));
            field->setFixedWidth(90);
            grid->addWidget(field, row, column, vertical[row] | horizontal[column]);
        }
    }
}
