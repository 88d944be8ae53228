#include "Painting.h"

#include <QPainter>
#include <QWidget>

namespace bench {

QImage backingStore(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

Work paint(std::shared_ptr<QWidget> widget, const QRegion& region)
{
    const auto image = std::make_shared<QImage>(backingStore(widget->size()));
    return [widget, image, region] {
        widget->render(image.get(), region.boundingRect().topLeft(), region,
                       QWidget::RenderFlags());
    };
}

Work draw(const QSize& size, std::function<void(QPainter&)> drawing)
{
    const auto image = std::make_shared<QImage>(backingStore(size));
    return [image, drawing = std::move(drawing)] {
        QPainter painter(image.get());
        drawing(painter);
    };
}

} // namespace bench
