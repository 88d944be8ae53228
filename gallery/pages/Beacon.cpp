#include "Beacon.h"

#include <QPainter>

namespace {

constexpr int extent = 110;
constexpr int outlineWidth = 3;
constexpr QRgb defaultColor = 0xffd6403a;
/// What an unlit lamp shows of its colour.
constexpr double leastOpacity = 0.12;

} // namespace

Beacon::Beacon(QWidget* parent)
    : QWidget(parent)
    , m_color(defaultColor)
{
    setFixedSize(extent, extent);
}

double Beacon::brightness() const
{
    return m_brightness;
}

void Beacon::setBrightness(double brightness)
{
    const double clamped = qBound(0.0, brightness, 1.0);
    if (clamped == m_brightness)
        return;
    m_brightness = clamped;
    update();
}

QColor Beacon::color() const
{
    return m_color;
}

void Beacon::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
}

void Beacon::paintEvent(QPaintEvent*)
{
    QColor light = isEnabled() ? m_color : palette().color(QPalette::Mid);
    const QColor outline = light;
    light.setAlphaF(leastOpacity + (1 - leastOpacity) * m_brightness);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(light);
    painter.setPen(QPen(outline, outlineWidth));
    painter.drawEllipse(rect().adjusted(outlineWidth, outlineWidth, -outlineWidth, -outlineWidth));
}
