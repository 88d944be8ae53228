#include "Painting.h"

#include <QDir>
#include <QtTest>
#include <QWidget>

namespace test {

namespace {

QString saved(const QImage& image, const QString& kind)
{
    QString name = QString::fromUtf8(QTest::currentTestFunction());
    if (QTest::currentDataTag())
        name += QLatin1Char('-') + QString::fromUtf8(QTest::currentDataTag());
    name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_-]+")), QStringLiteral("_"));
    const QString path =
        QDir::current().absoluteFilePath(name + QLatin1Char('-') + kind + QStringLiteral(".png"));
    image.save(path);
    return path;
}

bool report(const QImage& actual, const QImage& expected, const QString& difference)
{
    qInfo("%s\n  actual:   %s\n  expected: %s", qPrintable(difference),
          qPrintable(saved(actual, QStringLiteral("actual"))),
          qPrintable(saved(expected, QStringLiteral("expected"))));
    return false;
}

} // namespace

QImage canvas(const QSize& size, qreal devicePixelRatio, const QColor& background)
{
    QImage image(size * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(background);
    return image;
}

QImage paintedBy(QWidget& widget, qreal devicePixelRatio, const QRegion& region,
                 const QColor& background)
{
    QImage image = canvas(widget.size(), devicePixelRatio, background);
    const QPoint offset = region.boundingRect().topLeft();
    widget.render(&image, region.isEmpty() ? QPoint() : offset, region, QWidget::RenderFlags());
    return image;
}

bool sameImage(const QImage& actual, const QImage& expected)
{
    if (actual.size() != expected.size()) {
        return report(actual, expected,
                      QStringLiteral("sizes differ: %1x%2 and %3x%4")
                          .arg(actual.width())
                          .arg(actual.height())
                          .arg(expected.width())
                          .arg(expected.height()));
    }
    const QImage a = actual.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = expected.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                return report(actual, expected,
                              QStringLiteral("pixel (%1, %2) is #%3, expected #%4")
                                  .arg(x)
                                  .arg(y)
                                  .arg(a.pixel(x, y), 8, 16, QLatin1Char('0'))
                                  .arg(b.pixel(x, y), 8, 16, QLatin1Char('0')));
            }
        }
    }
    return true;
}

} // namespace test
