#pragma once

#include <QColor>
#include <QLabel>
#include <QWidget>

class Switch;
QT_BEGIN_NAMESPACE
class QString;
QT_END_NAMESPACE

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

/// A labelled switch in colours that suit a light and a dark background, with \a accent when it is
/// on.
Switch* makeColouredSwitch(const QString& text, const QColor& accent, bool on);

/// An icon of the library on a light plate, since the icons are dark; it is seen on any background.
class IconLabel : public QLabel
{
    Q_OBJECT

public:
    /// \a fileName is a name below :/icons/.
    IconLabel(const QString& fileName, int extent, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A landscape, painted: something colourful to lay frames on and to scroll over.
class Picture : public QWidget
{
    Q_OBJECT

public:
    explicit Picture(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
