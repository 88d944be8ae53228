#include "DemoParts.h"

#include "Touch.h"

#include <Switch.h>

#include <QIcon>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr int beaconExtent = 110;
constexpr int outlineWidth = 3;
constexpr QRgb defaultColor = 0xffd6403a;
/// What an unlit lamp shows of its colour.
constexpr double leastOpacity = 0.12;

} // namespace

Beacon::Beacon(QWidget* parent)
    : QWidget(parent)
    , m_color(defaultColor)
{
    setFixedSize(beaconExtent, beaconExtent);
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

Switch* makeColouredSwitch(const QString& text, const QColor& accent, bool on)
{
    auto* control = new Switch(text, accent);
    touch::setQuietColours(control);
    control->setChecked(on); // after the colours, which show those of the off state at first
    return control;
}

// The macro declares a function, which must be done outside of every namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(widgets);
}

namespace {

constexpr int plateMargin = 4;
constexpr int radius = 8;
constexpr QRgb plate = 0xfff4f4f4;

} // namespace

IconLabel::IconLabel(const QString& fileName, int extent, QWidget* parent)
    : QLabel(parent)
{
    registerIcons();
    setContentsMargins(plateMargin, plateMargin, plateMargin, plateMargin);
    setAlignment(Qt::AlignCenter);
    setPixmap(QIcon(QStringLiteral(":/icons/") + fileName).pixmap(extent));
}

void IconLabel::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(plate));
        painter.drawRoundedRect(rect(), radius, radius);
    }
    QLabel::paintEvent(event);
}

namespace {

constexpr QRgb skyTop = 0xff2c5f9e;
constexpr QRgb skyBottom = 0xfff4c28b;
constexpr QRgb sun = 0xffffe9b0;

/// One row of hills, from the back to the front; all but the colour in fractions of the height.
struct Hills
{
    qreal top;
    qreal rise;
    qreal pitch;
    QRgb color;
};
constexpr Hills rows[] = {
    {0.55, 0.14, 0.60, 0xff7d8fa6},
    {0.68, 0.10, 0.40, 0xff4f7a6b},
    {0.82, 0.07, 0.27, 0xff2f5a3f},
};

QPainterPath outline(const Hills& hills, const QSize& size)
{
    const qreal height = size.height();
    QPainterPath path(QPointF(0, height));
    for (int x = 0; x <= size.width(); x += 4) {
        const qreal wave = std::sin(x / (hills.pitch * height) * M_PI + hills.top * 9);
        path.lineTo(x, (hills.top - hills.rise * wave) * height);
    }
    path.lineTo(size.width(), height);
    path.closeSubpath();
    return path;
}

} // namespace

Picture::Picture(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Picture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0, QColor(skyTop));
    sky.setColorAt(0.7, QColor(skyBottom));
    painter.fillRect(rect(), sky);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(sun));
    painter.drawEllipse(QPointF(0.2 * width(), 0.35 * height()), 0.1 * height(), 0.1 * height());
    for (const Hills& hills : rows) {
        painter.setBrush(QColor(hills.color));
        painter.drawPath(outline(hills, size()));
    }
}
