#include "Rendering.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPalette>
#include <QWidget>

namespace {

/// Time for what a widget does by itself at its start: listing a folder, the first steps of an animation.
constexpr int settlingTime = 200;

} // namespace

void rendering::settle()
{
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(settlingTime))
        QCoreApplication::processEvents(QEventLoop::AllEvents, settlingTime);
}

void rendering::showUnseen(QWidget* window)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show();
    settle();
}

QImage rendering::pictureOf(QWidget* widget, qreal devicePixelRatio)
{
    QImage image(widget->size() * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(widget->palette().color(QPalette::Window));
    widget->render(&image);
    return image;
}
