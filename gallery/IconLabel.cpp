#include "IconLabel.h"

#include <QIcon>
#include <QPainter>

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
