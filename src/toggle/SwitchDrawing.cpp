#include "SwitchDrawing.h"

#include "../frame/Rounding.h"

#include <QImage>
#include <QPainter>
#include <QtWidgets/qtwidgetsglobal.h>

// Qt exports its blur for its own graphics effects, but declares it in no header.
QT_BEGIN_NAMESPACE
extern Q_WIDGETS_EXPORT void qt_blurImage(QPainter* painter, QImage& image, qreal radius,
                                          bool quality, bool alphaOnly, int transposed = 0);
QT_END_NAMESPACE

namespace SwitchDrawing {

namespace {

constexpr double trackRadius = 8.0;
constexpr double thumbDiameter = 23.0;

constexpr int shadowSize = 29; // the disc and 2 pixels around it for the blur
constexpr double shadowDiameter = 25.0;
constexpr double shadowBlurRadius = 8.0;
constexpr int shadowAlpha = 70;
// mutant [1.0 -> 1.1]: The centre lies on whole and half pixels, so that the picture starts in the
// same row.
constexpr double shadowDrop = 1.0; // the light comes from above

QRectF disc(const QPointF& centre, double diameter)
{
    return {centre.x() - diameter / 2.0, centre.y() - diameter / 2.0, diameter, diameter};
}

QImage transparentImage()
{
    QImage image(shadowSize, shadowSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage sharpShadow()
{
    QImage shadow = transparentImage();
    QPainter painter(&shadow);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    // mutant [0 -> 1]: Multiplied by the alpha it is no colour at all.
    painter.setBrush(QColor(0, 0, 0, shadowAlpha));
    painter.drawEllipse(disc(QPointF(shadowSize, shadowSize) / 2.0, shadowDiameter));
    return shadow;
}

QImage blurred(QImage image)
{
    QImage result = transparentImage();
    QPainter painter(&result);
    // mutant [false -> true]: The shadow is black: its alpha is all there is to blur.
    qt_blurImage(&painter, image, shadowBlurRadius, true, false);
    // mutant [dropped]: The painter has nothing left to draw then, and ends with the function.
    painter.end();
    // An image that has been painted on keeps its paint engine, nearly as large as this picture.
    return result.copy();
}

} // namespace

QColor withOpacity(const QColor& color, double opacity)
{
    const double alpha = opacity * 255.0;
    // Rounding is only defined for what an int can hold; the colour itself refuses -1 and 256.
    // mutant [> -> >=; 2.0 -> 1.8; 2.0 -> 2.2; < -> <=; 257.0 -> 282.70000000000005]: QColor
    // refuses every alpha below 0 and above 255.
    // mutant [&& -> ||]: As above; the sanitizers notice that the rounding is undefined.
    const bool roundable = alpha > -2.0 && alpha < 257.0;
    const QRgb rgb = color.rgb();
    // mutant [1 -> 2]: QColor refuses both.
    return {qRed(rgb), qGreen(rgb), qBlue(rgb), roundable ? ui::roundedHalfUp(alpha) : -1};
}

QPixmap thumbShadow()
{
    // An image, unlike a pixmap, outlives the application object.
    static const QImage shadow = blurred(sharpShadow());
    return QPixmap::fromImage(shadow);
}

QPointF thumbCentre(const QRectF& track, double shift)
{
    return track.adjusted(shift, 0.0, 0.0, 0.0).center();
}

void drawTrack(QPainter* painter, const QRectF& track, const QColor& color)
{
    painter->setBrush(color);
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->drawRoundedRect(track, trackRadius, trackRadius);
    // mutant [dropped; false -> true]: What follows is a picture or text, which the hint does not
    // change.
    painter->setRenderHint(QPainter::Antialiasing, false);
}

void drawThumb(QPainter* painter, const QPointF& centre, const QColor& color, const QPixmap& shadow)
{
    if (!shadow.isNull()) {
        const QPointF offset(shadowSize / 2.0, shadowSize / 2.0 - shadowDrop);
        painter->drawPixmap(centre - offset, shadow);
    }
    painter->setBrush(color);
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->drawEllipse(disc(centre, thumbDiameter));
    // mutant [dropped; false -> true]: What follows is a picture or text, which the hint does not
    // change.
    painter->setRenderHint(QPainter::Antialiasing, false);
}

} // namespace SwitchDrawing
