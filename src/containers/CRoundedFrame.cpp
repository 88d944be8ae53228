#include "ui/CRoundedFrame.h"

#include "../frame/Rounding.h"
#include "../frame/Saturated.h"

#include <QPainter>
#include <QPainterPath>
#include <QPaintEvent>

namespace ui {

namespace {

constexpr int defaultRadius = 18;
constexpr int defaultLineWidth = 2;

/// 1 - sqrt(2)/2: how far, in radii, the middle of a corner's arc lies from each of its sides.
constexpr double arcMiddle = 0.29289321881345254;

QPainterPath roundedRect(const QRectF& rect, int radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius, Qt::AbsoluteSize);
    return path;
}

/// Runs from the top left to the bottom right of whatever it paints.
QLinearGradient diagonalGradient(qreal firstStop, const QColor& first, qreal lastStop,
                                 const QColor& last)
{
    QLinearGradient gradient;
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(firstStop, first);
    gradient.setColorAt(lastStop, last);
    return gradient;
}

/// Light and dark come from the widget itself, the plain outline from \a palette.
QBrush outlineBrush(const QWidget& widget, QFrame::Shadow shadow, const QPalette& palette)
{
    const QPalette& own = widget.palette();
    switch (shadow) {
    case QFrame::Raised:
        return diagonalGradient(0.4, own.light().color(), 1.0, own.dark().color());
    case QFrame::Sunken:
        return diagonalGradient(0.0, own.dark().color(), 0.6, own.light().color());
    default:
        return palette.brush(QPalette::Current, widget.foregroundRole());
    }
}

} // namespace

CRoundedFrame::CRoundedFrame(QWidget* parent)
    : QWidget(parent)
    , m_radius(defaultRadius)
    , m_lineWidth(defaultLineWidth)
    , m_frameShadow(QFrame::Plain)
    , m_frameShape(Box)
    // mutant [0 -> (-1); 0 -> 1]: The constructor computes the margin in its body.
    , m_margin(0)
    , m_fillContents(false)
    , m_widgetMask(false)
    // mutant [false -> true]: Read only while the mask is enabled, and enabling it sets it.
    , m_maskDirty(false)
{
    updateMargins();
}

CRoundedFrame::~CRoundedFrame() = default;

int CRoundedFrame::radius() const
{
    return m_radius;
}

void CRoundedFrame::setRadius(int radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    fullUpdate();
}

int CRoundedFrame::lineWidth() const
{
    return m_lineWidth;
}

void CRoundedFrame::setLineWidth(int lineWidth)
{
    if (lineWidth == m_lineWidth)
        return;
    m_lineWidth = lineWidth;
    fullUpdate();
}

QFrame::Shadow CRoundedFrame::frameShadow() const
{
    return m_frameShadow;
}

void CRoundedFrame::setFrameShadow(QFrame::Shadow shadow)
{
    if (shadow == m_frameShadow)
        return;
    m_frameShadow = shadow;
    update();
}

CRoundedFrame::Shape CRoundedFrame::frameShape() const
{
    return m_frameShape;
}

void CRoundedFrame::setFrameShape(ui::CRoundedFrame::Shape shape)
{
    if (shape == m_frameShape)
        return;
    m_frameShape = shape;
    update();
}

void CRoundedFrame::enableFillContents(bool enable)
{
    if (enable == m_fillContents)
        return;
    m_fillContents = enable;
    update();
}

void CRoundedFrame::enableWidgetMask(bool enable)
{
    if (enable == m_widgetMask)
        return;
    m_widgetMask = enable;
    if (!enable) {
        clearMask();
        return;
    }
    updateGeometry();
    m_maskDirty = true;
    repaint(); // at once, so that the mask exists when the caller goes on
}

void CRoundedFrame::updateMargins()
{
    m_margin = roundedHalfUp(m_radius * arcMiddle);
    if (m_frameShape != NoFrame)
        m_margin = saturated(qint64(m_margin) + m_lineWidth + m_lineWidth / 2);
    setContentsMargins(m_margin, m_margin, m_margin, m_margin);
}

void CRoundedFrame::fullUpdate()
{
    updateGeometry();
    // mutant [order]: The margins do not depend on the mask, nor the mask on them.
    updateMargins();
    m_maskDirty = true;
    update();
}

void CRoundedFrame::paintFrame(QPainter* painter, QPainterPath const& path, QPalette const& palette)
{
    if (m_fillContents)
        painter->fillPath(path, palette.brush(QPalette::Current, backgroundRole()));
    if (m_frameShape == NoFrame)
        return;
    const QBrush brush = outlineBrush(*this, m_frameShadow, palette);
    painter->strokePath(path,
                        QPen(brush, m_lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
}

void CRoundedFrame::paintEvent(QPaintEvent* event)
{
    const bool interiorOnly = contentsRect().contains(event->rect(), false);
    if (interiorOnly && !m_fillContents)
        return;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (interiorOnly) {
        painter.fillRect(event->rect(), palette().brush(QPalette::Current, backgroundRole()));
        return;
    }

    if (m_widgetMask && m_maskDirty) {
        painter.setClipPath(roundedRect(QRectF(0, 0, width(), height()), m_radius),
                            Qt::ReplaceClip);
        // mutant [order]: setMask() paints nothing before it returns.
        setMask(painter.clipRegion());
        m_maskDirty = false;
    }
    // In floating point, where no line width is too large to be taken off twice.
    const qreal inset = m_frameShape == NoFrame ? 0 : m_lineWidth;
    const QRectF outline(inset, inset, width() - 2 * inset, height() - 2 * inset);
    paintFrame(&painter, roundedRect(outline, m_radius), palette());
}

void CRoundedFrame::resizeEvent(QResizeEvent*)
{
    m_maskDirty = true;
}

} // namespace ui
