#include "Painting.h"
#include "Rows.h"

#include <ui/CRoundedFrame.h>

#include <QPainter>
#include <QPainterPath>

namespace bench {

namespace {

const QSize frameSize(200, 100);

/// What is different from row to row.
struct Look
{
    QString name;
    QFrame::Shadow shadow;
    bool filled;
    bool masked;
};

std::shared_ptr<QWidget> roundedFrame(const Look& look)
{
    auto frame = std::make_shared<ui::CRoundedFrame>();
    frame->setFrameShadow(look.shadow);
    frame->enableFillContents(look.filled);
    frame->resize(frameSize);
    frame->enableWidgetMask(look.masked);
    return frame;
}

QString borderOf(const Look& look)
{
    if (look.shadow == QFrame::Plain)
        return QStringLiteral("black");
    return QStringLiteral("qlineargradient(x1: 0, y1: 0, x2: 1, y2: 1,"
                          " stop: 0.4 palette(light), stop: 1 palette(dark))");
}

/// A QFrame with the rounded look that one gives it by a style sheet, and by a mask.
std::shared_ptr<QWidget> styledFrame(const Look& look)
{
    auto frame = std::make_shared<QFrame>();
    frame->setStyleSheet(
        QStringLiteral("QFrame { border: 2px solid %1; border-radius: 18px; %2 }")
            .arg(borderOf(look),
                 look.filled ? QStringLiteral("background: palette(window);") : QString()));
    frame->resize(frameSize);
    if (look.masked) {
        QPainterPath path;
        path.addRoundedRect(frame->rect(), 18, 18);
        frame->setMask(path.toFillPolygon().toPolygon());
    }
    return frame;
}

QBrush outlineBrush(const Look& look, const QPalette& palette)
{
    if (look.shadow == QFrame::Plain)
        return palette.windowText();
    QLinearGradient gradient;
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.4, palette.light().color());
    gradient.setColorAt(1.0, palette.dark().color());
    return gradient;
}

Work bareFrame(const Look& look)
{
    return draw(frameSize, [look, palette = QPalette()](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath path;
        path.addRoundedRect(QRectF(2, 2, 196, 96), 18, 18);
        if (look.filled)
            painter.fillPath(path, palette.window());
        painter.strokePath(
            path,
            QPen(outlineBrush(look, palette), 2, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    });
}

Row frameRow(const Look& look)
{
    return {look.name, [look] { return paint(roundedFrame(look)); },
            QStringLiteral("QFrame with a style sheet"),
            [look] { return paint(styledFrame(look)); }, [look] { return bareFrame(look); }};
}

/// A child's update, which damages no more than a part of the frame's interior.
Row interiorRow(const Look& look)
{
    const QRect child(60, 30, 40, 20);
    return {look.name, [look, child] { return paint(roundedFrame(look), child); },
            QStringLiteral("QFrame with a style sheet"),
            [look, child] { return paint(styledFrame(look), child); },
            [look, child] {
                return draw(frameSize, [look, child, palette = QPalette()](QPainter& painter) {
                    if (look.filled)
                        painter.fillRect(child, palette.window());
                });
            }};
}

} // namespace

QVector<Row> frameRows()
{
    return {
        frameRow({QStringLiteral("frame, plain"), QFrame::Plain, false, false}),
        frameRow({QStringLiteral("frame, raised"), QFrame::Raised, false, false}),
        frameRow({QStringLiteral("frame, filled"), QFrame::Plain, true, false}),
        frameRow({QStringLiteral("frame, masked"), QFrame::Plain, true, true}),
        interiorRow({QStringLiteral("frame, child's update inside"), QFrame::Plain, false, false}),
        interiorRow(
            {QStringLiteral("filled frame, child's update inside"), QFrame::Plain, true, false}),
    };
}

} // namespace bench
