#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QRect>

/// What a battery symbol must look like, worked out and drawn by the test alone.
struct BatteryPicture
{
    QRect body;
    QRect terminal;
    QRect boltBox;

    int frameWidth = 4;
    int percent = 0;
    bool present = true;
    bool charging = false;
    QColor fill = Qt::blue;
    QColor foreground = Qt::black;

    /// Lays the symbol out in \a contents.
    void layOut(const QRect& contents);

    /// Which elements the damaged area reaches.
    struct Damage
    {
        bool body = true;
        bool terminal = true;
    };

    /// Draws what \a damage asks for into \a image, clipped to \a clip if that is not empty.
    void draw(QImage& image, Damage damage, const QRect& clip = QRect()) const;

private:
    void drawFill(QPainter& painter) const;
    void drawFrame(QPainter& painter, Damage damage) const;
    void drawBolt(QPainter& painter) const;
};
