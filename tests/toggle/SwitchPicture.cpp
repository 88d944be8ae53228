#include "SwitchPicture.h"

#include "Painting.h"

#include <QPainter>
#include <QPixmap>
#include <QtWidgets/qtwidgetsglobal.h>

QT_BEGIN_NAMESPACE
extern Q_WIDGETS_EXPORT void qt_blurImage(QPainter*, QImage&, qreal, bool, bool, int = 0);
QT_END_NAMESPACE

namespace test {

namespace {

// A disc of 25 pixels in an image of 29, black with alpha 70, blurred with radius 8.
QPixmap shadow()
{
    QImage sharp(29, 29, QImage::Format_ARGB32_Premultiplied);
    sharp.fill(Qt::transparent);
    QPainter painter(&sharp);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawEllipse(QRectF(2, 2, 25, 25));
    painter.end();

    QImage soft(29, 29, QImage::Format_ARGB32_Premultiplied);
    soft.fill(Qt::transparent);
    painter.begin(&soft);
    qt_blurImage(&painter, sharp, 8.0, true, false);
    painter.end();
    return QPixmap::fromImage(soft);
}

} // namespace

void paint(QPainter& painter, const SwitchPicture& picture)
{
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(picture.trackOpacity);
    painter.setBrush(picture.trackColor);
    painter.drawRoundedRect(QRectF(picture.track), 8, 8);

    painter.setOpacity(1.0);
    const double x = picture.track.x() + picture.track.width() / 2.0 + picture.thumbOffset;
    const double y = picture.track.y() + picture.track.height() / 2.0;
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (picture.shadow)
        painter.drawPixmap(QPointF(x - 14.5, y - 13.5), shadow());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(picture.thumbColor);
    painter.drawEllipse(QRectF(x - 11.5, y - 11.5, 23, 23));

    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setOpacity(picture.textOpacity);
    painter.setPen(picture.textColor);
    painter.setFont(picture.font);
    painter.drawText(picture.textArea, Qt::AlignLeft | Qt::AlignVCenter, picture.text);
}

QImage painted(const SwitchPicture& picture, qreal devicePixelRatio, const QColor& background)
{
    QImage image = canvas(picture.size, devicePixelRatio, background);
    QPainter painter(&image);
    paint(painter, picture);
    return image;
}

} // namespace test
