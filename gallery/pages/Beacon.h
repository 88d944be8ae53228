#pragma once

#include <QColor>
#include <QWidget>

/// A round light whose brightness an animation may drive.
class Beacon : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double brightness READ brightness WRITE setBrightness)
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    explicit Beacon(QWidget* parent = nullptr);

    /// From 0 (dark) to 1 (the full colour, and the default), clamped.
    double brightness() const;
    void setBrightness(double brightness);

    QColor color() const;
    void setColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_brightness = 1.0;
    QColor m_color;
};
