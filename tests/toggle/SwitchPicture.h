#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QMargins>
#include <QRect>

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

/// The picture painted without any code of the library.
QImage painted(const SwitchPicture& picture, qreal devicePixelRatio = 1.0,
               const QColor& background = Qt::white);

} // namespace test
