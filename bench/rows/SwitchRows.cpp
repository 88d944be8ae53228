#include "Painting.h"
#include "Rows.h"

#include <Animator.h>
#include <Switch.h>

#include <QApplication>
#include <QCheckBox>
#include <QPainter>
#include <QResizeEvent>
#include <QSlider>

namespace bench {

namespace {

const QSize plainSize(56, 40);
const QSize labelledSize(160, 40);
constexpr int frames = 9; // 150 ms at 60 frames in a second

struct Look
{
    QString name;
    QString text;
    bool on;

    QSize size() const
    {
        return text.isEmpty() ? plainSize : labelledSize;
    }
};

template <typename Button>
std::shared_ptr<Button> button(const Look& look)
{
    auto result = std::make_shared<Button>(look.text);
    result->resize(look.size());
    result->setChecked(look.on);
    return result;
}

/// The thumb's shadow, as an image to be drawn.
QPixmap shadow()
{
    QPixmap pixmap(29, 29);
    pixmap.fill(QColor(0, 0, 0, 70));
    return pixmap;
}

Work bareSwitch(const Look& look)
{
    return draw(look.size(), [look, pixmap = shadow()](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 97));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawRoundedRect(QRectF(8, 10, 40, 20), 8, 8);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.drawPixmap(QPointF(22.5, 6.5), pixmap);
        painter.setBrush(Qt::black);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(QRectF(25.5, 8.5, 23, 23));
        painter.setRenderHint(QPainter::Antialiasing, false);
        if (!look.text.isEmpty()) {
            painter.setPen(Qt::black);
            painter.drawText(QRect(56, 0, 104, 40), Qt::AlignLeft | Qt::AlignVCenter, look.text);
        }
    });
}

Row paintRow(const Look& look)
{
    return {look.name, [look] { return paint(button<Switch>(look)); }, QStringLiteral("QCheckBox"),
            [look] { return paint(button<QCheckBox>(look)); }, [look] { return bareSwitch(look); }};
}

/// Every frame of a transition: the animators a step on, and the painting that follows.
Work animate()
{
    const auto control = button<Switch>({{}, {}, true});
    const QList<Animator*> animators = control->findChildren<Animator*>();
    const Work repaint = paint(control);
    return [control, animators, repaint] {
        for (int frame = 1; frame <= frames; ++frame) {
            for (Animator* animator : animators)
                animator->setCurrentTime(animator->duration() * frame / frames);
            repaint();
        }
    };
}

template <typename Widget>
Work resize(std::shared_ptr<Widget> widget)
{
    return [widget] {
        QResizeEvent event(labelledSize, plainSize);
        QCoreApplication::sendEvent(widget.get(), &event);
    };
}

Row animationRow()
{
    return {QStringLiteral("switch, a transition of nine frames"),
            animate,
            QStringLiteral("QCheckBox, painted nine times"),
            [] {
                const Work repaint = paint(button<QCheckBox>({{}, {}, true}));
                return Work([repaint] {
                    for (int frame = 0; frame < frames; ++frame)
                        repaint();
                });
            },
            {}};
}

Row resizeRow()
{
    return {QStringLiteral("switch, a resize with its shadow"),
            [] {
                return resize(button<Switch>({{}, {}, true}));
            },
            QStringLiteral("QSlider"),
            [] { return resize(std::make_shared<QSlider>(Qt::Horizontal)); },
            {}};
}

} // namespace

QVector<Row> switchRows()
{
    return {
        paintRow({QStringLiteral("switch, off"), {}, false}),
        paintRow({QStringLiteral("switch, on"), {}, true}),
        paintRow({QStringLiteral("switch with a label"), QStringLiteral("Wireless"), true}),
        animationRow(),
        resizeRow(),
    };
}

} // namespace bench
