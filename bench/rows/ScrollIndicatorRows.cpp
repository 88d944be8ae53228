#include "Painting.h"
#include "Rows.h"
#include "Shown.h"

#include <ui/ScrollIndicatorBar.h>

#include <QPainter>

namespace bench {

namespace {

constexpr QSize barSize(5, 300); // of the scroll bars too

/// A scroll bar as slim and flat as the indicator, as one makes it with Qt alone.
const char* const styleSheet =
    "QScrollBar:vertical { width: 5px; background: lightgray; margin: 0; border: none; }"
    "QScrollBar::handle:vertical { background: gray; min-height: 5px; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }";

void setUp(QScrollBar& bar)
{
    bar.setRange(0, 1000);
    bar.setPageStep(200);
    bar.resize(barSize);
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
    return draw(barSize, [](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::lightGray);
        const QRect groove(QPoint(0, 0), barSize);
        painter.drawRects(&groove, 1);
        painter.setBrush(Qt::NoBrush);
        for (int x = 0; x < 5; ++x) {
            painter.setPen(QPen(QColor(120 - 8 * x, 120 - 8 * x, 120 - 8 * x), 1.0, Qt::SolidLine,
                                Qt::SquareCap, Qt::BevelJoin));
            painter.drawLine(x, 0, x, 50);
        }
    });
}

/// To and fro, in turns.
template <typename Bar>
Work scroll(const QString& sheet)
{
    const auto bar = std::make_shared<Shown<Bar>>(barSize);
    setUp(**bar);
    (*bar)->setStyleSheet(sheet);
    deliverEvents();
    return [bar] {
        (*bar)->setValue((*bar)->value() == 0 ? 10 : 0);
        deliverEvents();
    };
}

Row scrollRow(const QString& name, const QString& counterpart, const QString& sheet)
{
    return {name,
            [] { return scroll<ui::widgets::ScrollIndicatorBar>(QString()); },
            counterpart,
            [sheet] { return scroll<QScrollBar>(sheet); },
            {}};
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
    const QString plain = QStringLiteral("QScrollBar, as slim");
    const QString styled = QStringLiteral("QScrollBar with a style sheet, as slim and flat");
    return {
        {QStringLiteral("scroll indicator"),
         [] { return paint(idleBar<ui::widgets::ScrollIndicatorBar>()); }, plain,
         [] { return paint(idleBar<QScrollBar>()); }, bareIndicator},
        {QStringLiteral("scroll indicator, a highlight"), highlight, plain,
         [] { return paint(idleBar<QScrollBar>()); }, bareIndicator},
        scrollRow(QStringLiteral("scroll indicator, a step beside a plain bar"), plain, QString()),
        scrollRow(QStringLiteral("scroll indicator, a step"), styled,
                  QString::fromLatin1(styleSheet)),
    };
}

} // namespace bench
