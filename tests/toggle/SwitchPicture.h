#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QMargins>
#include <QRect>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace test {

/// What a switch is expected to look like, measured by hand from its rules.
struct SwitchPicture
{
    QSize size;
    QRect track;
    QColor trackColor;
    double trackOpacity = 1.0;
    double thumbOffset = 0.0; ///< Of the thumb's centre from the track's, to the right.
    QColor thumbColor;
    bool shadow = true;
    QRect textArea;
    QString text;
    QFont font;
    QColor textColor = Qt::black;
    double textOpacity = 1.0;
};

/// Paints the picture without any code of the library.
void paint(QPainter& painter, const SwitchPicture& picture);

/// The picture on a canvas.
QImage painted(const SwitchPicture& picture, qreal devicePixelRatio = 1.0,
               const QColor& background = Qt::white);

} // namespace test
