#include "scenes/IndicatorScene.h"

#include "Journal.h"

#include <ui/KeypadLineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QLabel>
#include <QScrollArea>
#include <QScroller>
#include <QVBoxLayout>

using ui::widgets::ScrollIndicatorBar;

namespace {

constexpr int rowHeight = 44;
constexpr int rowCount = 30;

QWidget* makeRows()
{
    auto* rows = new QWidget;
    auto* column = new QVBoxLayout(rows);
    column->setSpacing(0);
    auto* field = new ui::KeypadLineEdit(nullptr, ui::keyboard::KeyboardType::Integer);
    field->setObjectName(QStringLiteral("inside"));
    field->setText(QStringLiteral("7"));
    column->addWidget(field);
    for (int number = 1; number <= rowCount; ++number) {
        auto* row = new QLabel(QStringLiteral("Track %1").arg(number));
        row->setFixedHeight(rowHeight);
        column->addWidget(row);
    }
    return rows;
}

void stopAtTheEnds(QScroller* scroller)
{
    QScrollerProperties properties = scroller->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                               QScrollerProperties::OvershootAlwaysOff);
    scroller->setScrollerProperties(properties);
}

} // namespace

IndicatorScene::IndicatorScene(Journal& journal)
{
    auto* area = new QScrollArea;
    auto* indicator = new ScrollIndicatorBar;
    indicator->setObjectName(QStringLiteral("indicator"));
    area->setObjectName(QStringLiteral("area"));
    area->setVerticalScrollBar(indicator);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(makeRows());
    auto* column = new QVBoxLayout(this);
    column->addWidget(area);

    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    QScroller* scroller = QScroller::scroller(area->viewport());
    stopAtTheEnds(scroller);
    connect(scroller, &QScroller::stateChanged, this,
            [this, indicator, &journal](QScroller::State state) {
                const bool moves = state == QScroller::Dragging || state == QScroller::Scrolling;
                if (moves == m_moves)
                    return;
                m_moves = moves;
                indicator->setHighlightBar(moves);
                journal.record(moves ? QStringLiteral("moves") : QStringLiteral("rests"));
            });
}
