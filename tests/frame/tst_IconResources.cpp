#include "TestApplication.h"

#include <QDir>
#include <QIcon>
#include <QResource>
#include <QXmlStreamReader>

Q_DECLARE_METATYPE(QResource::Compression)

namespace {

const QString tileView = QStringLiteral(":/icons/tile_view.svg");
const QString listView = QStringLiteral(":/icons/list_view.svg");
const QString usb = QStringLiteral(":/icons/usb.png");

const QColor purple(0x50, 0x07, 0x78);

QByteArray contents(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

/// Value of the big-endian number in the four bytes at \a offset.
quint32 number(const QByteArray& bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

/// Content of the first chunk of \a type of the PNG file \a bytes.
QByteArray pngChunk(const QByteArray& bytes, const QByteArray& type)
{
    constexpr int signatureSize = 8;
    constexpr int headerSize = 8;
    constexpr int checksumSize = 4;
    for (int at = signatureSize; at + headerSize <= bytes.size();) {
        const int size = int(number(bytes, at));
        if (bytes.mid(at + 4, 4) == type)
            return bytes.mid(at + headerSize, size);
        at += headerSize + size + checksumSize;
    }
    return {};
}

QVector<QXmlStreamAttributes> elements(const QByteArray& document, const QString& name)
{
    QVector<QXmlStreamAttributes> found;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == name)
            found.append(reader.attributes());
    }
    return found;
}

/// How far \a point lies outside the rectangle with corners of \a radius; negative inside.
qreal distance(const QPointF& point, const QRectF& rect, qreal radius)
{
    const qreal x = qAbs(point.x() - rect.center().x()) - rect.width() / 2 + radius;
    const qreal y = qAbs(point.y() - rect.center().y()) - rect.height() / 2 + radius;
    return std::hypot(qMax(x, 0.0), qMax(y, 0.0)) + qMin(qMax(x, y), 0.0) - radius;
}

QImage rendered(const QString& path, int size)
{
    return QIcon(path).pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// Whether \a image, with \a scale pixels per unit, shows \a shapes with corners of \a radius and
/// nothing else. Only the pixels that an edge crosses are left out.
bool shows(const QImage& image, qreal scale, const QVector<QRectF>& shapes, qreal radius)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            qreal outside = image.width();
            for (const QRectF& shape : shapes)
                outside = qMin(outside,
                               scale * distance(QPointF(x + 0.5, y + 0.5) / scale, shape, radius));
            const QColor color = image.pixelColor(x, y);
            if ((outside < -1 && color != purple) || (outside > 1 && color.alpha() != 0)) {
                qInfo() << "wrong pixel at" << x << y << color << "distance" << outside;
                return false;
            }
        }
    }
    return true;
}

bool isOpaqueAround(const QImage& image, int x, int y)
{
    for (int j = y - 1; j <= y + 1; ++j) {
        for (int i = x - 1; i <= x + 1; ++i) {
            if (!image.valid(i, j) || qAlpha(image.pixel(i, j)) != 255)
                return false;
        }
    }
    return true;
}

/// Sum of the coverage of the pixels of \a line, in pixels.
qreal coverage(const QImage& image, const QRect& line)
{
    int alpha = 0;
    for (int y = line.top(); y <= line.bottom(); ++y) {
        for (int x = line.left(); x <= line.right(); ++x)
            alpha += qAlpha(image.pixel(x, y));
    }
    return alpha / 255.0;
}

} // namespace

class tst_IconResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directoryHoldsThreeFiles();
    void storage_data();
    void storage();
    void readInEveryLocale();
    void tileViewDocument();
    void listViewDocument();
    void tileViewPixels_data();
    void tileViewPixels();
    void listViewPixels_data();
    void listViewPixels();
    void usbHeader();
    void usbColors();
    void usbShape();
};

void tst_IconResources::directoryHoldsThreeFiles()
{
    QStringList children = QDir(QStringLiteral(":/icons")).entryList();
    children.sort();
    QCOMPARE(children,
             (QStringList{QStringLiteral("list_view.svg"), QStringLiteral("tile_view.svg"),
                          QStringLiteral("usb.png")}));
}

void tst_IconResources::storage_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QResource::Compression>("compression");
    QTest::addColumn<qint64>("storedSize");
    QTest::addColumn<qint64>("documentSize");

    QTest::newRow("tile view") << tileView << QResource::NoCompression << qint64(497)
                               << qint64(497);
    QTest::newRow("list view") << listView << QResource::ZlibCompression << qint64(4 + 341)
                               << qint64(1259);
    QTest::newRow("usb") << usb << QResource::NoCompression << qint64(1469) << qint64(1469);
}

void tst_IconResources::storage()
{
    QFETCH(QString, path);
    QFETCH(QResource::Compression, compression);
    QFETCH(qint64, storedSize);
    QFETCH(qint64, documentSize);

    const QResource resource(path);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), compression);
    QCOMPARE(resource.size(), storedSize);
    QCOMPARE(resource.uncompressedSize(), documentSize);

    const auto stored =
        QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()), int(storedSize));
    const bool compressed = compression == QResource::ZlibCompression;
    if (compressed)
        QCOMPARE(qint64(number(stored, 0)), documentSize);
    QCOMPARE(qint64(contents(path).size()), documentSize);
    QCOMPARE(contents(path), compressed ? qUncompress(stored) : stored);
}

void tst_IconResources::readInEveryLocale()
{
    const QLocale before = QLocale();
    QLocale::setDefault(QLocale(QLocale::French, QLocale::Canada));
    for (const QString& path : {tileView, listView, usb})
        QVERIFY(!contents(path).isEmpty());
    QLocale::setDefault(before);
}

void tst_IconResources::tileViewDocument()
{
    const auto roots = elements(contents(tileView), QStringLiteral("svg"));
    QCOMPARE(roots.size(), 1);
    QCOMPARE(roots.first().value(QLatin1String("width")), QStringLiteral("800px"));
    QCOMPARE(roots.first().value(QLatin1String("height")), QStringLiteral("800px"));
    QCOMPARE(roots.first().value(QLatin1String("viewBox")), QStringLiteral("0 0 22 22"));

    const auto groups = elements(contents(tileView), QStringLiteral("g"));
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first().value(QLatin1String("fill")), QStringLiteral("#500778"));
    QCOMPARE(groups.first().value(QLatin1String("fill-rule")), QStringLiteral("nonzero"));
}

void tst_IconResources::listViewDocument()
{
    const auto roots = elements(contents(listView), QStringLiteral("svg"));
    QCOMPARE(roots.size(), 1);
    QCOMPARE(roots.first().value(QLatin1String("width")), QStringLiteral("800px"));
    QCOMPARE(roots.first().value(QLatin1String("height")), QStringLiteral("800px"));
    QCOMPARE(roots.first().value(QLatin1String("viewBox")), QStringLiteral("0 0 16 16"));

    const auto paths = elements(contents(listView), QStringLiteral("path"));
    QCOMPARE(paths.size(), 1);
    QCOMPARE(paths.first().value(QLatin1String("fill")), QStringLiteral("#500778"));
}

void tst_IconResources::tileViewPixels_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("small") << 2;
    QTest::newRow("large") << 16;
}

void tst_IconResources::tileViewPixels()
{
    QFETCH(int, scale);
    const QImage image = rendered(tileView, 22 * scale);
    QCOMPARE(image.size(), QSize(22, 22) * scale);

    const QVector<QRectF> squares = {{2, 2, 8, 8}, {12, 2, 8, 8}, {12, 12, 8, 8}, {2, 12, 8, 8}};
    QVERIFY(shows(image, scale, squares, 2));
}

void tst_IconResources::listViewPixels_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("small") << 3;
    QTest::newRow("large") << 20;
}

void tst_IconResources::listViewPixels()
{
    QFETCH(int, scale);
    const QImage image = rendered(listView, 16 * scale);
    QCOMPARE(image.size(), QSize(16, 16) * scale);

    QVector<QRectF> shapes;
    for (const qreal top : {2.007812, 7.007812, 12.007812}) {
        shapes.append(QRectF(1, top, 9, 1.988282));
        shapes.append(QRectF(12, top, 2, 1.988282));
    }
    QVERIFY(shows(image, scale, shapes, 0.5));
}

void tst_IconResources::usbHeader()
{
    const QByteArray header = pngChunk(contents(usb), "IHDR");
    QCOMPARE(header.size(), 13);
    QCOMPARE(number(header, 0), 24u);
    QCOMPARE(number(header, 4), 24u);
    QCOMPARE(int(header.at(8)), 8); // bits per channel
    QCOMPARE(int(header.at(9)), 6); // RGBA
    QCOMPARE(int(header.at(12)), 0); // not interlaced

    const QByteArray resolution = pngChunk(contents(usb), "pHYs");
    QCOMPARE(resolution.size(), 9);
    QCOMPARE(number(resolution, 0), 2835u);
    QCOMPARE(number(resolution, 4), 2835u);
    QCOMPARE(int(resolution.at(8)), 1); // per metre
}

void tst_IconResources::usbColors()
{
    const QImage image = QImage(usb).convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> interior;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const bool inside = isOpaqueAround(image, x, y);
            if (qAlpha(pixel) == 0)
                continue;
            QVERIFY(qRed(pixel) >= 214 && qRed(pixel) <= (inside ? 239 : 248));
            QVERIFY(qGreen(pixel) >= 5 && qGreen(pixel) <= (inside ? 16 : 73));
            QVERIFY(qBlue(pixel) <= (inside ? 0 : 57));
            if (inside)
                interior.insert(pixel);
        }
    }
    QVERIFY2(interior.size() > 8, "the reds are a gradient");
}

void tst_IconResources::usbShape()
{
    const QImage image = QImage(usb).convertToFormat(QImage::Format_ARGB32);

    // The block at the lower right.
    QVERIFY(qAbs(coverage(image, QRect(14, 19, 10, 1)) - 9) < 1);
    QVERIFY(qAbs(coverage(image, QRect(19, 14, 1, 10)) - 9) < 1);

    // The band reaches the left edge and falls away from it; its slope turns a column's run into
    // its thickness.
    const qreal run = coverage(image, QRect(4, 0, 1, 24));
    const qreal rise =
        (coverage(image, QRect(0, 0, 1, 12)) - coverage(image, QRect(8, 0, 1, 12))) / 8;
    QVERIFY(coverage(image, QRect(0, 0, 1, 24)) > 8);
    QVERIFY(rise < -0.4);
    QVERIFY(qAbs(run / std::hypot(1, rise) - 10) < 1);

    // It ends near the top right corner.
    QCOMPARE(qAlpha(image.pixel(18, 6)), 255);
    QCOMPARE(coverage(image, QRect(22, 0, 2, 13)), 0.0);
    QCOMPARE(coverage(image, QRect(0, 0, 6, 3)), 0.0);
}

int main(int argc, char** argv)
{
    return test::run<tst_IconResources>(argc, argv);
}

#include "tst_IconResources.moc"
