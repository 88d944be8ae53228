#pragma once

#include <QPixmap>

QT_BEGIN_NAMESPACE
class QColor;
class QPainter;
class QPointF;
class QRectF;
QT_END_NAMESPACE

/// How a switch draws its parts.
namespace SwitchDrawing {

/**
 * \a color with the alpha that \a opacity gives, its own alpha ignored.
 * The invalid color with alpha 0 if the alpha, rounded, is not in 0...255.
 */
QColor withOpacity(const QColor& color, double opacity);

/// The blurred disc that lies beneath the thumb: always the same, and blurred only once.
QPixmap thumbShadow();

/// The centre of the thumb in \a track when the left edge of its room is moved by \a shift.
QPointF thumbCentre(const QRectF& track, double shift);

void drawTrack(QPainter* painter, const QRectF& track, const QColor& color);
void drawThumb(QPainter* painter, const QPointF& centre, const QColor& color,
               const QPixmap& shadow);

} // namespace SwitchDrawing
