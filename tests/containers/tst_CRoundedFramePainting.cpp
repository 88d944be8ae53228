#include "Painting.h"
#include "Palettes.h"
#include "TestApplication.h"

#include <ui/CRoundedFrame.h>

#include <QPainter>
#include <QPainterPath>

using ui::CRoundedFrame;

namespace {

/// The state of a frame, and the picture that follows from it.
struct Look
{
    QSize size = QSize(90, 60);
    int radius = 18;
    int lineWidth = 2;
    QFrame::Shadow shadow = QFrame::Plain;
    CRoundedFrame::Shape shape = CRoundedFrame::Box;
    bool filled = false;
    QPalette palette = test::lightPalette();
    qreal dpr = 1.0;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool enabled = true;

    QPalette::ColorGroup group() const
    {
        return enabled ? QPalette::Active : QPalette::Disabled; // hidden widgets count as active
    }
    QColor color(QPalette::ColorRole role) const
    {
        return palette.color(group(), role);
    }
};

void apply(const Look& look, CRoundedFrame& frame)
{
    frame.setRadius(look.radius);
    frame.setLineWidth(look.lineWidth);
    frame.setFrameShadow(look.shadow);
    frame.setFrameShape(look.shape);
    frame.enableFillContents(look.filled);
    frame.setPalette(look.palette);
    frame.setLayoutDirection(look.direction);
    frame.setEnabled(look.enabled);
    frame.resize(look.size);
}

QBrush outline(const Look& look)
{
    QLinearGradient gradient(0, 0, 1, 1);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    if (look.shadow == QFrame::Raised) {
        gradient.setStops({{0.4, look.color(QPalette::Light)}, {1.0, look.color(QPalette::Dark)}});
        return gradient;
    }
    if (look.shadow == QFrame::Sunken) {
        gradient.setStops({{0.0, look.color(QPalette::Dark)}, {0.6, look.color(QPalette::Light)}});
        return gradient;
    }
    return look.color(QPalette::WindowText);
}

QImage expected(const Look& look)
{
    QImage image = test::canvas(look.size, look.dpr);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool box = look.shape != CRoundedFrame::NoFrame;
    const int inset = box ? look.lineWidth : 0;
    QPainterPath path;
    path.addRoundedRect(QRect(QPoint(), look.size).adjusted(inset, inset, -inset, -inset),
                        look.radius, look.radius);
    if (look.filled)
        painter.fillPath(path, look.color(QPalette::Window));
    if (box) {
        painter.strokePath(
            path, QPen(outline(look), look.lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    }
    return image;
}

class OpenFrame : public CRoundedFrame
{
public:
    using CRoundedFrame::paintFrame;
};

} // namespace

Q_DECLARE_METATYPE(Look)

class tst_CRoundedFramePainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looks_data();
    void looks();
    void followsForegroundAndBackgroundRole();
    void shadesFromCornerToCorner_data();
    void shadesFromCornerToCorner();
    void takesPlainColoursFromArgument();
    void takesGradientColoursFromItself();

    void leavesInteriorAlone();
    void fillsDamagedInterior();
    void redrawsOutlineOnePixelFurther();
    void drawsNoOutlineWithoutMargins_data();
    void drawsNoOutlineWithoutMargins();
};

void tst_CRoundedFramePainting::looks_data()
{
    QTest::addColumn<Look>("look");
    const auto row = [](const char* name, auto change) {
        Look look;
        change(look);
        QTest::newRow(name) << look;
    };
    row("plain", [](Look&) {});
    row("raised", [](Look& look) { look.shadow = QFrame::Raised; });
    row("sunken", [](Look& look) { look.shadow = QFrame::Sunken; });
    row("unknown shadow", [](Look& look) { look.shadow = QFrame::Shadow(0); });
    row("unknown shape", [](Look& look) { look.shape = CRoundedFrame::Shape(7); });
    row("filled", [](Look& look) { look.filled = true; });
    row("no frame", [](Look& look) { look.shape = CRoundedFrame::NoFrame; });
    row("no frame, filled", [](Look& look) {
        look.shape = CRoundedFrame::NoFrame;
        look.filled = true;
    });
    row("wide line", [](Look& look) { look.lineWidth = 7; });
    row("odd line, square corners", [](Look& look) {
        look.lineWidth = 3;
        look.radius = 0;
    });
    row("radius beyond half a side", [](Look& look) { look.radius = 50; });
    row("large", [](Look& look) { look.size = QSize(301, 203); });
    row("dark", [](Look& look) {
        look.palette = test::darkPalette();
        look.shadow = QFrame::Raised;
        look.filled = true;
    });
    row("disabled", [](Look& look) {
        look.palette = test::telltalePalette();
        look.enabled = false;
        look.filled = true;
    });
    row("disabled, sunken", [](Look& look) {
        look.palette = test::telltalePalette();
        look.enabled = false;
        look.shadow = QFrame::Sunken;
    });
    row("telltale", [](Look& look) {
        look.palette = test::telltalePalette();
        look.filled = true;
    });
    row("dpr 2, raised", [](Look& look) {
        look.dpr = 2.0;
        look.shadow = QFrame::Raised;
        look.filled = true;
    });
    row("right to left, sunken", [](Look& look) {
        look.direction = Qt::RightToLeft;
        look.shadow = QFrame::Sunken;
    });
}

void tst_CRoundedFramePainting::looks()
{
    QFETCH(Look, look);
    CRoundedFrame frame;
    apply(look, frame);
    QVERIFY(test::sameImage(test::paintedBy(frame, look.dpr), expected(look)));
}

void tst_CRoundedFramePainting::followsForegroundAndBackgroundRole()
{
    Look look;
    look.filled = true;
    look.palette = test::telltalePalette();
    CRoundedFrame frame;
    apply(look, frame);
    frame.setForegroundRole(QPalette::Link);
    frame.setBackgroundRole(QPalette::AlternateBase);

    Look swapped = look;
    swapped.palette.setBrush(look.group(), QPalette::WindowText, look.color(QPalette::Link));
    swapped.palette.setBrush(look.group(), QPalette::Window, look.color(QPalette::AlternateBase));
    QVERIFY(test::sameImage(test::paintedBy(frame), expected(swapped)));
}

void tst_CRoundedFramePainting::shadesFromCornerToCorner_data()
{
    QTest::addColumn<QFrame::Shadow>("shadow");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("raised") << QFrame::Raised << false;
    QTest::newRow("sunken") << QFrame::Sunken << false;
    QTest::newRow("raised, right to left") << QFrame::Raised << true;
}

void tst_CRoundedFramePainting::shadesFromCornerToCorner()
{
    QFETCH(QFrame::Shadow, shadow);
    QFETCH(bool, mirrored);
    Look look;
    look.size = QSize(100, 100);
    look.radius = 0;
    look.lineWidth = 10; // covers 5 … 15 at the left and the top, 85 … 95 at the other sides
    look.shadow = shadow;
    look.palette.setColor(QPalette::Light, QColor(Qt::yellow));
    look.palette.setColor(QPalette::Dark, QColor(Qt::blue));
    look.direction = mirrored ? Qt::RightToLeft : Qt::LeftToRight;
    CRoundedFrame frame;
    apply(look, frame);
    const QImage image = test::paintedBy(frame);

    const bool raised = shadow == QFrame::Raised;
    const QColor solid(Qt::yellow);
    const QPoint topLeft(10, 10);
    const QPoint middleOfTop(70, 10); // three eighths of the way from corner to corner
    const QPoint middleOfBottom(30, 89); // five eighths of it
    const QPoint bottomRight(89, 89);
    QCOMPARE(image.pixelColor(raised ? topLeft : bottomRight), solid);
    QCOMPARE(image.pixelColor(raised ? middleOfTop : middleOfBottom), solid);
    const QColor dark = image.pixelColor(raised ? bottomRight : topLeft);
    QVERIFY2(dark.blue() > 235 && dark.red() < 20, qPrintable(dark.name()));
    const QColor between = image.pixelColor(raised ? middleOfBottom : middleOfTop);
    QVERIFY2(between.blue() > 40 && between.red() > 40, qPrintable(between.name()));
}

void tst_CRoundedFramePainting::takesPlainColoursFromArgument()
{
    Look look;
    look.filled = true;
    OpenFrame frame;
    apply(look, frame);
    look.palette = test::telltalePalette();

    QPainterPath path;
    path.addRoundedRect(2, 2, 86, 56, 18, 18);
    QImage image = test::canvas(look.size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    look.palette.setCurrentColorGroup(look.group());
    frame.paintFrame(&painter, path, look.palette);
    painter.end();
    QVERIFY(test::sameImage(image, expected(look)));
}

void tst_CRoundedFramePainting::takesGradientColoursFromItself()
{
    Look look;
    look.shadow = QFrame::Raised;
    OpenFrame frame;
    apply(look, frame);

    QPainterPath path;
    path.addRoundedRect(2, 2, 86, 56, 18, 18);
    QImage image = test::canvas(look.size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    frame.paintFrame(&painter, path, test::telltalePalette());
    painter.end();
    QVERIFY(test::sameImage(image, expected(look)));
}

void tst_CRoundedFramePainting::leavesInteriorAlone()
{
    CRoundedFrame frame;
    apply(Look(), frame);
    QVERIFY(test::sameImage(test::paintedBy(frame, 1.0, frame.contentsRect()),
                            test::canvas(frame.size())));
}

void tst_CRoundedFramePainting::fillsDamagedInterior()
{
    Look look;
    look.filled = true;
    look.palette = test::telltalePalette();
    CRoundedFrame frame;
    apply(look, frame);
    for (const QRect& damaged : {frame.contentsRect(), QRect(20, 15, 7, 9)}) {
        QImage filled = test::canvas(look.size);
        QPainter(&filled).fillRect(damaged, look.color(QPalette::Window));
        QVERIFY(test::sameImage(test::paintedBy(frame, 1.0, damaged), filled));
    }
}

void tst_CRoundedFramePainting::redrawsOutlineOnePixelFurther()
{
    Look look;
    look.lineWidth = 9; // reaches the contents rectangle only if the whole outline is drawn
    CRoundedFrame frame;
    apply(look, frame);
    frame.setContentsMargins(8, 8, 8, 8);
    const QRect damaged = frame.contentsRect().adjusted(-1, 0, 0, 0);
    QImage outlined = test::canvas(look.size);
    {
        QPainter painter(&outlined);
        painter.setClipRect(damaged);
        painter.drawImage(0, 0, expected(look));
    }
    QVERIFY(test::sameImage(test::paintedBy(frame, 1.0, damaged), outlined));
    QVERIFY(test::sameImage(test::paintedBy(frame, 1.0, frame.contentsRect()),
                            test::canvas(look.size)));
}

void tst_CRoundedFramePainting::drawsNoOutlineWithoutMargins_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<QSize>("size");
    // The whole widget then counts as the inside.
    QTest::newRow("no metrics") << 0 << 0 << QSize(90, 60);
    QTest::newRow("margin rounded to zero") << 1 << 0 << QSize(90, 60);
    QTest::newRow("negative margins") << 0 << -4 << QSize(90, 60);
    QTest::newRow("margins larger than the widget") << 100 << 2 << QSize(20, 20);
    QTest::newRow("absurd margins") << 18 << 1000000000 << QSize(90, 60);
}

void tst_CRoundedFramePainting::drawsNoOutlineWithoutMargins()
{
    QFETCH(int, radius);
    QFETCH(int, lineWidth);
    QFETCH(QSize, size);
    Look look;
    look.radius = radius;
    look.lineWidth = lineWidth;
    look.size = size;
    CRoundedFrame frame;
    apply(look, frame);
    frame.enableWidgetMask(true);
    QVERIFY(test::sameImage(test::paintedBy(frame), test::canvas(size)));
    QVERIFY(frame.mask().isEmpty());
    frame.enableFillContents(true);
    QVERIFY(test::sameImage(test::paintedBy(frame),
                            test::canvas(size, 1.0, look.color(QPalette::Window))));
}

const test::Registration<tst_CRoundedFramePainting> registration;

#include "tst_CRoundedFramePainting.moc"
