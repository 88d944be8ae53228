#include "Rendering.h"

#include <QCoreApplication>
#include <QPalette>
#include <QTimer>
#include <QWidget>

namespace {

/// Milliseconds; reading a directory of a slow medium takes some of them.
constexpr int longestWait = 5000;

} // namespace

bool rendering::waitUntil(const std::function<bool()>& condition)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(longestWait);
    while (!condition()) {
        if (!deadline.isActive())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void rendering::showUnseen(QWidget* window)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show();
    QCoreApplication::processEvents();
}

QImage rendering::pictureOf(QWidget* widget, qreal devicePixelRatio)
{
    QImage image(widget->size() * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(widget->palette().color(QPalette::Window));
    widget->render(&image);
    return image;
}
