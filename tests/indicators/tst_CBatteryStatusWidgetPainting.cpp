#include "BatteryState.h"
#include "Painting.h"
#include "Palettes.h"
#include "TestApplication.h"

#include <QPainter>
#include <QPainterPath>

using test::BatteryLayout;
using ui::CBatteryStatusWidget;

namespace {

/// What a battery shows, and the test's own drawing of it.
struct Look
{
    QSize size = QSize(40, 80);
    int frameWidth = 4;
    int percent = 50;
    bool present = true;
    bool charging = false;
    QColor color = Qt::blue;

    BatteryLayout layout() const
    {
        return BatteryLayout(QRect(QPoint(), size), frameWidth);
    }
    void applyTo(CBatteryStatusWidget& widget) const;
    void drawFill(QPainter& painter, const QBrush& foreground) const;
    void drawBodyOutline(QPainter& painter, const QBrush& foreground) const;
    void drawTop(QPainter& painter, const QBrush& foreground) const;
    void drawBolt(QPainter& painter) const;
    void draw(QPainter& painter, const QBrush& foreground) const;
    QImage image(const QBrush& foreground, qreal devicePixelRatio = 1.0) const;

private:
    QPen outlinePen(const QBrush& foreground) const;
};

void Look::applyTo(CBatteryStatusWidget& widget) const
{
    widget.setFrameWidth(frameWidth);
    widget.setChargePercentage(percent);
    widget.setBatteryPresent(present);
    widget.setBatteryCharging(charging);
    widget.setFillColor(color);
    widget.resize(size);
}

/// A gradient over the unit square, stretched to \a rect.
QBrush cornerToCorner(const QRectF& rect, const QColor& bottomLeft, const QColor& topRight)
{
    QLinearGradient gradient(0, 1, 1, 0);
    gradient.setStops({{0.0, bottomLeft}, {1.0, topRight}});
    QBrush brush(gradient);
    brush.setTransform(
        QTransform::fromTranslate(rect.x(), rect.y()).scale(rect.width(), rect.height()));
    return brush;
}

QBrush hatched(const QBrush& brush)
{
    return QBrush(brush.color(), Qt::BDiagPattern);
}

QPen Look::outlinePen(const QBrush& foreground) const
{
    const Qt::PenStyle style = present ? Qt::SolidLine : Qt::DashLine;
    return QPen(foreground, frameWidth, style, Qt::SquareCap, Qt::BevelJoin);
}

void Look::drawFill(QPainter& painter, const QBrush& foreground) const
{
    const QRect body = layout().body;
    const int inset = frameWidth / 2;
    const int left = body.left() + inset;
    const int top = body.top() + inset;
    const int width = body.width() - 2 * inset;
    const int height = body.height() - 2 * inset;
    if (!present) {
        painter.fillRect(left, top, width, height, hatched(foreground));
        return;
    }
    const int rows = test::roundedHalfUp(height * percent / 100.0) + 1;
    const QRect filled(left, top + height - rows, width, rows);
    painter.fillRect(
        filled, cornerToCorner(QRectF(filled).normalized(), color.darker(200), color.lighter(150)));
}

void Look::drawBodyOutline(QPainter& painter, const QBrush& foreground) const
{
    painter.setPen(outlinePen(foreground));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(layout().body), frameWidth * 1.618, frameWidth * 1.618);
}

void Look::drawTop(QPainter& painter, const QBrush& foreground) const
{
    painter.setPen(outlinePen(foreground));
    painter.setBrush(present ? foreground : hatched(foreground));
    painter.drawRoundedRect(QRectF(layout().top), frameWidth * 1.618, frameWidth * 1.618);
}

void Look::drawBolt(QPainter& painter) const
{
    const QRect box = layout().bolt;
    const double l = box.left();
    const double t = box.top();
    const double r = box.right();
    const double b = box.bottom();
    const double a = box.width() / 9.708;
    const double d = box.width() / 1.618;
    const double c = box.left() + box.width() / 2;
    const QPolygonF outline({{l, b},
                             {c - a, t + d + a},
                             {l + a, t + d + a},
                             {c - a, t},
                             {r + 1 - a, t},
                             {c + a, t + d},
                             {r, t + d},
                             {l, b}});
    const QColor amber(239, 184, 0);

    QPainterPath path;
    path.addPolygon(outline);
    painter.setPen(
        QPen(amber.darker(150), frameWidth / 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(cornerToCorner(path.boundingRect(), amber.darker(125), amber.lighter(125)));
    painter.drawPath(path);
}

void Look::draw(QPainter& painter, const QBrush& foreground) const
{
    drawFill(painter, foreground);
    drawBodyOutline(painter, foreground);
    drawTop(painter, foreground);
    if (present && charging)
        drawBolt(painter);
}

QImage Look::image(const QBrush& foreground, qreal devicePixelRatio) const
{
    QImage image = test::canvas(size, devicePixelRatio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, foreground);
    return image;
}

/// \a draw on a canvas of the size of \a look, clipped to \a region.
template <typename Draw>
QImage clipped(const Look& look, const QRegion& region, Draw draw)
{
    QImage image = test::canvas(look.size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRegion(region);
    draw(painter);
    return image;
}

} // namespace

class tst_CBatteryStatusWidgetPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLook_data();
    void everyLook();
    void filledInBlueUnlessToldOtherwise();
    void rightToLeftIsTheSame();
    void foregroundRole();
    void colorGroup_data();
    void colorGroup();
    void inactiveWindow();

    void nothingBeforeTheFirstResize();
    void emptyBatteryKeepsOneRow();
    void fillRisesFromTheBottom();
    void fillIsAGradient();
    void absentBatteryIgnoresChargeAndCharging();
    void boltLiesOnTop();
    void boltPoints();
    void hairlineFrame();
    void noFrameOfNegativeWidth_data();
    void noFrameOfNegativeWidth();

    void terminalAlone();
    void terminalAloneWithoutFill();
    void terminalAloneWithoutBolt();
    void bodyAlone_data();
    void bodyAlone();
    void beside();
    void paintingKeepsTheState();
};

void tst_CBatteryStatusWidgetPainting::everyLook_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("light") << test::lightPalette() << 1.0;
    QTest::newRow("light, two pixels per unit") << test::lightPalette() << 2.0;
    QTest::newRow("dark") << test::darkPalette() << 1.0;
    QTest::newRow("dark, two pixels per unit") << test::darkPalette() << 2.0;
}

void tst_CBatteryStatusWidgetPainting::everyLook()
{
    QFETCH(QPalette, palette);
    QFETCH(qreal, ratio);
    const QBrush foreground = palette.brush(QPalette::Active, QPalette::WindowText);
    Look look;
    for (const QSize& size : {QSize(40, 80), QSize(100, 80), QSize(61, 131), QSize(12, 20)}) {
        for (const int frameWidth : {-6, -3, -2, -1, 0, 1, 4, 5}) {
            for (const int percent : {0, 1, 50, 99, 100}) {
                for (const int flags : {0, 1, 2, 3}) {
                    look = {size,         frameWidth, percent, bool(flags & 1), bool(flags & 2),
                            Qt::darkGreen};
                    CBatteryStatusWidget widget;
                    widget.setPalette(palette);
                    look.applyTo(widget);
                    QVERIFY(test::sameImage(test::paintedBy(widget, ratio),
                                            look.image(foreground, ratio)));
                }
            }
        }
    }
}

void tst_CBatteryStatusWidgetPainting::filledInBlueUnlessToldOtherwise()
{
    Look look;
    look.color = Qt::blue;
    look.percent = 50;
    CBatteryStatusWidget widget;
    widget.setChargePercentage(50);
    widget.resize(look.size);
    const QBrush foreground = widget.palette().brush(QPalette::Current, widget.foregroundRole());
    QVERIFY(test::sameImage(test::paintedBy(widget), look.image(foreground)));
}

void tst_CBatteryStatusWidgetPainting::rightToLeftIsTheSame()
{
    Look look;
    look.charging = true;
    CBatteryStatusWidget widget;
    widget.setLayoutDirection(Qt::RightToLeft);
    look.applyTo(widget);
    QVERIFY(test::sameImage(test::paintedBy(widget),
                            look.image(widget.palette().brush(QPalette::WindowText))));
}

void tst_CBatteryStatusWidgetPainting::foregroundRole()
{
    const QPalette palette = test::telltalePalette();
    for (const bool present : {true, false}) {
        Look look;
        look.present = present;
        CBatteryStatusWidget widget;
        widget.setPalette(palette);
        widget.setForegroundRole(QPalette::Link);
        look.applyTo(widget);
        QVERIFY(test::sameImage(test::paintedBy(widget),
                                look.image(palette.brush(QPalette::Active, QPalette::Link))));
    }
}

void tst_CBatteryStatusWidgetPainting::colorGroup_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::newRow("present, enabled") << true << true << QPalette::Active;
    QTest::newRow("present, disabled") << true << false << QPalette::Disabled;
    QTest::newRow("absent, enabled") << false << true << QPalette::Active;
    QTest::newRow("absent, disabled") << false << false << QPalette::Disabled;
}

void tst_CBatteryStatusWidgetPainting::colorGroup()
{
    QFETCH(bool, present);
    QFETCH(bool, enabled);
    QFETCH(QPalette::ColorGroup, group);
    const QPalette palette = test::telltalePalette();
    Look look;
    look.present = present;
    look.charging = true;
    CBatteryStatusWidget widget;
    widget.setPalette(palette);
    widget.setEnabled(enabled);
    look.applyTo(widget);
    QVERIFY(test::sameImage(test::paintedBy(widget),
                            look.image(palette.brush(group, QPalette::WindowText))));
}

void tst_CBatteryStatusWidgetPainting::inactiveWindow()
{
    const QPalette palette = test::telltalePalette();
    Look look;
    QWidget window;
    auto* battery = new CBatteryStatusWidget(&window);
    battery->setPalette(palette);
    look.applyTo(*battery);
    QWidget other;
    window.show();
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(test::sameImage(test::paintedBy(*battery),
                            look.image(palette.brush(QPalette::Inactive, QPalette::WindowText))));
}

void tst_CBatteryStatusWidgetPainting::nothingBeforeTheFirstResize()
{
    CBatteryStatusWidget widget;
    widget.setBatteryCharging(true);
    // Rendering sends the pending resize first, so the event goes to the widget directly.
    widget.setAttribute(Qt::WA_PendingResizeEvent, false);
    QVERIFY(test::sameImage(test::paintedBy(widget), test::canvas(widget.size())));
}

void tst_CBatteryStatusWidgetPainting::emptyBatteryKeepsOneRow()
{
    Look look;
    look.percent = 0;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QImage image = test::paintedBy(widget);
    // The area ends two pixels above the body's last row, 64; the outline covers what is below 63.
    QVERIFY(image.pixelColor(20, 62).blue() > image.pixelColor(20, 62).red() + 50);
    QCOMPARE(image.pixelColor(20, 61), QColor(Qt::white));
}

void tst_CBatteryStatusWidgetPainting::fillRisesFromTheBottom()
{
    Look look;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QImage image = test::paintedBy(widget);
    // The area is 48 rows high, from 15 to 62; half of it and one more are filled.
    QVERIFY(image.pixelColor(20, 38) != QColor(Qt::white));
    QCOMPARE(image.pixelColor(20, 37), QColor(Qt::white));
}

void tst_CBatteryStatusWidgetPainting::fillIsAGradient()
{
    Look look;
    look.percent = 100;
    look.color = QColor(100, 60, 20);
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QImage image = test::paintedBy(widget);
    const int darkest = image.pixelColor(8, 60).red();
    const int middle = image.pixelColor(20, 38).red();
    const int lightest = image.pixelColor(31, 17).red();
    QVERIFY(darkest < middle && middle < lightest);
    QVERIFY(qAbs(darkest - 50) < 15);
    QVERIFY(qAbs(lightest - 150) < 15);
}

void tst_CBatteryStatusWidgetPainting::absentBatteryIgnoresChargeAndCharging()
{
    Look look;
    look.present = false;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QImage before = test::paintedBy(widget);
    widget.setChargePercentage(90);
    widget.setBatteryCharging(true);
    QVERIFY(test::sameImage(test::paintedBy(widget), before));
}

void tst_CBatteryStatusWidgetPainting::boltLiesOnTop()
{
    // A frame so wide that the bolt, shifted by it, lies over the outline at the right.
    Look look;
    look.size = QSize(100, 130);
    look.frameWidth = 14;
    look.charging = true;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QBrush foreground = widget.palette().brush(QPalette::WindowText);
    const QImage image = test::paintedBy(widget);
    QVERIFY(test::sameImage(image, look.image(foreground)));
    const QRect bolt = look.layout().bolt;
    QVERIFY(bolt.right() > look.layout().body.right() - 7);
    QCOMPARE(image.pixel(bolt.right(), bolt.top() + int(bolt.width() / 1.618)),
             QColor(239, 184, 0).darker(150).rgb());
}

void tst_CBatteryStatusWidgetPainting::boltPoints()
{
    // Without an outline worth mentioning, the colours beside the corners tell where they are.
    Look look;
    look.size = QSize(400, 680);
    look.frameWidth = 0;
    look.percent = 0;
    look.charging = true;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QImage image = test::paintedBy(widget);
    const QRect box = look.layout().bolt;
    const double a = box.width() / 9.708;
    const double d = box.width() / 1.618;
    const int c = box.left() + box.width() / 2;
    const auto isBolt = [&image](double x, double y) {
        return image.pixelColor(qFloor(x), qFloor(y)) != QColor(Qt::white);
    };
    const double t = box.top();
    QVERIFY(!isBolt(c - a - 4, t + 1));
    QVERIFY(isBolt(c - a + 3, t + 1));
    QVERIFY(isBolt(box.right() + 1 - a - 2, t + 1));
    QVERIFY(!isBolt(box.right() + 1 - a + 3, t + 1));
    QVERIFY(isBolt(c + a, t + d - 1));
    QVERIFY(!isBolt(c + a + 10, t + d - 3));
    QVERIFY(isBolt(box.right() - 3, t + d + 1));
    QVERIFY(!isBolt(box.right() + 2, t + d + 1));
    QVERIFY(isBolt(box.left() + a + 3, t + d + a - 2));
    QVERIFY(!isBolt(box.left() + a - 3, t + d + a - 2));
    QVERIFY(!isBolt(c - a - 6, t + d + a + 3));
    QVERIFY(isBolt(box.left() + 1, box.bottom() - 2));
}

/// A pen of no width draws a line of one pixel, at every device pixel ratio.
void tst_CBatteryStatusWidgetPainting::hairlineFrame()
{
    Look look;
    look.size = QSize(100, 80);
    look.frameWidth = 0;
    look.percent = 0;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const int black = qGray(widget.palette().color(QPalette::WindowText).rgb());
    const QPoint centre = look.layout().body.center();
    for (const int ratio : {1, 2}) {
        const QImage image = test::paintedBy(widget, ratio);
        int covered = 0; // of the row's pixels left of the middle, in all
        for (int x = 0; x < centre.x() * ratio; ++x)
            covered += 255 - qGray(image.pixel(x, centre.y() * ratio));
        QVERIFY(qAbs(covered - (255 - black)) <= 2);
    }
}

void tst_CBatteryStatusWidgetPainting::noFrameOfNegativeWidth_data()
{
    QTest::addColumn<int>("frameWidth");
    QTest::newRow("one") << -1;
    QTest::newRow("more") << -6;
}

/// Nothing but the fill and the terminal is left, and of the bolt its inside.
void tst_CBatteryStatusWidgetPainting::noFrameOfNegativeWidth()
{
    QFETCH(int, frameWidth);
    Look look;
    look.size = QSize(100, 80);
    look.frameWidth = frameWidth;
    look.charging = true;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QBrush foreground = widget.palette().brush(QPalette::WindowText);
    const BatteryLayout layout = look.layout();
    QVERIFY(layout.body.left() > 0 && layout.body.right() < 99); // where an outline would show

    QImage expected = test::canvas(look.size);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    look.drawFill(painter, foreground);
    painter.fillRect(layout.top, foreground);
    look.drawBolt(painter);
    QVERIFY(test::sameImage(test::paintedBy(widget), expected));
}

void tst_CBatteryStatusWidgetPainting::terminalAlone()
{
    for (const bool present : {true, false}) {
        Look look;
        look.present = present;
        CBatteryStatusWidget widget;
        look.applyTo(widget);
        const QBrush foreground = widget.palette().brush(QPalette::WindowText);
        // Down to the row above the body, where the body's outline would show.
        const QRegion region(0, 0, 40, look.layout().body.top());
        const QImage expected =
            clipped(look, region, [&](QPainter& painter) { look.drawTop(painter, foreground); });
        QVERIFY(test::sameImage(test::paintedBy(widget, 1.0, region), expected));
    }
}

void tst_CBatteryStatusWidgetPainting::terminalAloneWithoutFill()
{
    CBatteryStatusWidget widget;
    Look look;
    look.percent = 100;
    look.applyTo(widget);
    test::paintedBy(widget);
    // With a negative inset, and the rectangles as they were, the fill would reach the terminal.
    widget.setFrameWidth(-40);
    const QRegion region(0, 0, 14, look.layout().body.top());
    const QRegion terminal(15, 0, 10, look.layout().body.top());
    const QImage image = test::paintedBy(widget, 1.0, region + terminal);
    QCOMPARE(image.pixelColor(7, 8), QColor(Qt::white));
}

void tst_CBatteryStatusWidgetPainting::terminalAloneWithoutBolt()
{
    CBatteryStatusWidget widget;
    Look look;
    look.charging = true;
    look.applyTo(widget);
    test::paintedBy(widget);
    // With its rectangle as it was, the bolt's pen would be wide enough to cover the terminal.
    widget.setFrameWidth(80);
    const QRect terminal = look.layout().top;
    const QImage image = test::paintedBy(widget, 1.0, terminal);
    const QColor foreground = widget.palette().color(QPalette::WindowText);
    QCOMPARE(image.pixelColor(terminal.center()), foreground);
}

void tst_CBatteryStatusWidgetPainting::bodyAlone_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("present");
    QTest::newRow("present") << QSize(40, 80) << true;
    // The terminal's outline would show between the dashes of the body's.
    for (const int width : {40, 61, 75, 100, 140})
        QTest::addRow("absent, %d wide", width) << QSize(width, 240) << false;
}

void tst_CBatteryStatusWidgetPainting::bodyAlone()
{
    QFETCH(QSize, size);
    QFETCH(bool, present);
    Look look;
    look.size = size;
    look.present = present;
    look.charging = true;
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    const QBrush foreground = widget.palette().brush(QPalette::WindowText);
    const QRect body = look.layout().body;
    const QImage expected = clipped(look, body, [&](QPainter& painter) {
        look.drawFill(painter, foreground);
        look.drawBodyOutline(painter, foreground);
        if (present)
            look.drawBolt(painter);
    });
    QVERIFY(test::sameImage(test::paintedBy(widget, 1.0, body), expected));
}

void tst_CBatteryStatusWidgetPainting::beside()
{
    Look look;
    look.size = QSize(100, 80);
    CBatteryStatusWidget widget;
    look.applyTo(widget);
    test::paintedBy(widget);
    // The outline's outer half lies beside the body's rectangle, which the event must reach.
    const QRect column(look.layout().body.left() - 2, 20, 2, 20);
    QVERIFY(test::sameImage(test::paintedBy(widget, 1.0, column), test::canvas(look.size)));
}

void tst_CBatteryStatusWidgetPainting::paintingKeepsTheState()
{
    CBatteryStatusWidget widget;
    Look look;
    look.charging = true;
    look.applyTo(widget);
    const QImage first = test::paintedBy(widget);
    const test::BatteryState before(widget);
    QVERIFY(test::sameImage(test::paintedBy(widget), first));
    const test::BatteryState after(widget);
    QCOMPARE(after.flags, before.flags);
    QCOMPARE(after.charge, before.charge);
    QCOMPARE(after.body, before.body);
    QCOMPARE(after.fillBrush, before.fillBrush);
}

const test::Registration<tst_CBatteryStatusWidgetPainting> registration;

#include "tst_CBatteryStatusWidgetPainting.moc"
