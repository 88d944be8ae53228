#include "Painting.h"
#include "Rows.h"

#include <ui/ScrollIndicatorBar.h>

#include <QPainter>

namespace bench {

namespace {

constexpr int length = 300;

void setUp(QScrollBar& bar)
{
    bar.setRange(0, 1000);
    bar.setPageStep(200);
    bar.resize(bar.sizeHint().width(), length);
}

template <typename Bar>
std::shared_ptr<QWidget> idleBar()
{
    auto bar = std::make_shared<Bar>();
    setUp(*bar);
    return bar;
}

Work bareIndicator()
{
    return draw({5, length}, [](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::lightGray);
        const QRect groove(0, 0, 5, length);
        painter.drawRects(&groove, 1);
        painter.setBrush(Qt::NoBrush);
        for (int x = 0; x < 5; ++x) {
            painter.setPen(QPen(QColor(120 - 8 * x, 120 - 8 * x, 120 - 8 * x), 1.0, Qt::SolidLine,
                                Qt::SquareCap, Qt::BevelJoin));
            painter.drawLine(x, 0, x, 50);
        }
    });
}

/// A step to and fro, and the painting that follows it.
template <typename Bar>
Work scrollStep()
{
    auto bar = std::static_pointer_cast<Bar>(idleBar<Bar>());
    const Work repaint = paint(bar);
    return [bar, repaint] {
        bar->setValue(bar->value() == 0 ? 10 : 0);
        repaint();
    };
}

Work highlight()
{
    auto bar = std::static_pointer_cast<ui::widgets::ScrollIndicatorBar>(
        idleBar<ui::widgets::ScrollIndicatorBar>());
    const Work repaint = paint(bar);
    const auto on = std::make_shared<bool>(false);
    return [bar, repaint, on] {
        *on = !*on;
        bar->setHighlightBar(*on);
        repaint();
    };
}

} // namespace

QVector<Row> scrollIndicatorRows()
{
    const QString counterpart = QStringLiteral("QScrollBar");
    return {
        {QStringLiteral("scroll indicator"),
         [] { return paint(idleBar<ui::widgets::ScrollIndicatorBar>()); }, counterpart,
         [] { return paint(idleBar<QScrollBar>()); }, bareIndicator},
        {QStringLiteral("scroll indicator, a step"), scrollStep<ui::widgets::ScrollIndicatorBar>,
         counterpart, scrollStep<QScrollBar>, bareIndicator},
        {QStringLiteral("scroll indicator, a highlight"), highlight, counterpart,
         [] { return paint(idleBar<QScrollBar>()); }, bareIndicator},
    };
}

} // namespace bench
