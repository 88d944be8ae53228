#include "BatteryPicture.h"
#include "Painting.h"
#include "Palettes.h"
#include "TestApplication.h"

#include <ui/CBatteryStatusWidget.h>

namespace {

/// The widget and the picture of the same state.
struct Pair
{
    explicit Pair(const QSize& size, int frameWidth = 4)
    {
        picture.frameWidth = frameWidth;
        picture.layOut(QRect(QPoint(), size));
        battery.setFrameWidth(frameWidth);
        battery.resize(size);
        picture.foreground = battery.palette().color(QPalette::WindowText);
    }

    void setPercent(int percent)
    {
        picture.percent = percent;
        battery.setChargePercentage(percent);
    }

    void setPresent(bool present)
    {
        picture.present = present;
        battery.setBatteryPresent(present);
    }

    void setCharging(bool charging)
    {
        picture.charging = charging;
        battery.setBatteryCharging(charging);
    }

    void setPalette(const QPalette& palette)
    {
        battery.setPalette(palette);
        picture.foreground = battery.palette().color(battery.foregroundRole());
    }

    bool agree(qreal devicePixelRatio = 1.0)
    {
        QImage expected = test::canvas(battery.size(), devicePixelRatio);
        BatteryPicture::Damage damage;
        damage.body = picture.body.intersects(battery.rect());
        damage.terminal = picture.terminal.intersects(battery.rect());
        picture.draw(expected, damage);
        return test::sameImage(test::paintedBy(battery, devicePixelRatio), expected);
    }

    ui::CBatteryStatusWidget battery;
    BatteryPicture picture;
};

} // namespace

class tst_CBatteryStatusWidgetPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void fillSpansTheChargeAndOneRow_data();
    void fillSpansTheChargeAndOneRow();
    void fillColor();
    void foregroundComesFromTheCurrentGroup_data();
    void foregroundComesFromTheCurrentGroup();
    void damageOfTheTerminalAlone();
    void damageOfTheBodyAlone();
    void nothingBeforeTheFirstResize();
    void symbolLargerThanTheWidget();
    void noRoomForTheBody();
    void rightToLeftChangesNothing();
};

void tst_CBatteryStatusWidgetPainting::states_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<int>("percent");
    QTest::addColumn<bool>("present");
    QTest::addColumn<bool>("charging");
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<qreal>("ratio");

    for (bool dark : {false, true}) {
        for (qreal ratio : {1.0, 2.0}) {
            for (int frameWidth : {1, 4, 5}) {
                for (int percent : {0, 1, 50, 99, 100}) {
                    for (int state = 0; state < 4; ++state) {
                        QTest::addRow("%s, %d %%, %s%s, frame of %d, ratio %g",
                                      dark ? "dark" : "light", percent,
                                      state & 1 ? "present" : "absent",
                                      state & 2 ? " and charging" : "", frameWidth, ratio)
                            << dark << percent << bool(state & 1) << bool(state & 2) << frameWidth
                            << ratio;
                    }
                }
            }
        }
    }
}

void tst_CBatteryStatusWidgetPainting::states()
{
    QFETCH(bool, dark);
    QFETCH(int, percent);
    QFETCH(bool, present);
    QFETCH(bool, charging);
    QFETCH(int, frameWidth);
    QFETCH(qreal, ratio);

    Pair pair(QSize(61, 97), frameWidth);
    pair.setPalette(dark ? test::darkPalette() : test::lightPalette());
    pair.setPercent(percent);
    pair.setPresent(present);
    pair.setCharging(charging);
    QVERIFY(pair.agree(ratio));
}

void tst_CBatteryStatusWidgetPainting::fillSpansTheChargeAndOneRow_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("rows");
    // The area inside the outline is 48 rows high: 13 + 2 … 64 - 2.
    QTest::newRow("empty") << 0 << 1;
    QTest::newRow("1 %") << 1 << 1; // 0.48 rounds to 0
    QTest::newRow("2 %") << 2 << 2; // 0.96 rounds to 1
    QTest::newRow("half") << 50 << 25;
    QTest::newRow("97 %") << 97 << 48; // 46.56 rounds to 47
}

void tst_CBatteryStatusWidgetPainting::fillSpansTheChargeAndOneRow()
{
    QFETCH(int, percent);
    Pair pair(QSize(40, 80));
    pair.setPercent(percent);
    const QImage image = test::paintedBy(pair.battery);
    int coloured = 0;
    for (int y = 15; y <= 62; ++y)
        coloured += image.pixelColor(20, y) != QColor(Qt::white);
    QTEST(coloured, "rows");
}

void tst_CBatteryStatusWidgetPainting::fillColor()
{
    Pair pair(QSize(60, 100));
    pair.setPercent(80);
    pair.picture.fill = QColor(10, 160, 90);
    pair.battery.setFillColor(QColor(10, 160, 90));
    QVERIFY(pair.agree());
}

void tst_CBatteryStatusWidgetPainting::foregroundComesFromTheCurrentGroup_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::newRow("enabled") << true << QPalette::WindowText;
    QTest::newRow("disabled") << false << QPalette::WindowText;
    QTest::newRow("another role") << true << QPalette::Link;
    QTest::newRow("another role, disabled") << false << QPalette::Link;
}

void tst_CBatteryStatusWidgetPainting::foregroundComesFromTheCurrentGroup()
{
    QFETCH(bool, enabled);
    QFETCH(QPalette::ColorRole, role);

    Pair pair(QSize(60, 100));
    pair.battery.setEnabled(enabled);
    pair.battery.setForegroundRole(role);
    pair.setPalette(test::telltalePalette());
    const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
    pair.picture.foreground = test::telltalePalette().color(group, role);
    for (bool present : {true, false}) {
        pair.setPresent(present);
        QVERIFY(pair.agree());
    }
}

void tst_CBatteryStatusWidgetPainting::damageOfTheTerminalAlone()
{
    for (bool present : {true, false}) {
        Pair pair(QSize(60, 100));
        pair.setPercent(100);
        pair.setCharging(true);
        pair.setPresent(present);
        const QRect damaged(pair.picture.terminal.left(), 0, 10, pair.picture.terminal.top() + 1);
        QVERIFY(!damaged.intersects(pair.picture.body));

        QImage expected = test::canvas(pair.battery.size());
        BatteryPicture::Damage damage;
        damage.body = false;
        pair.picture.draw(expected, damage, damaged);
        QVERIFY(test::sameImage(test::paintedBy(pair.battery, 1.0, damaged), expected));
    }
}

void tst_CBatteryStatusWidgetPainting::damageOfTheBodyAlone()
{
    Pair pair(QSize(60, 100));
    pair.setPercent(60);
    pair.setCharging(true);
    const QRect damaged = pair.picture.body;
    QVERIFY(!damaged.intersects(pair.picture.terminal));

    QImage expected = test::canvas(pair.battery.size());
    BatteryPicture::Damage damage;
    damage.terminal = false;
    pair.picture.draw(expected, damage, damaged);
    QVERIFY(test::sameImage(test::paintedBy(pair.battery, 1.0, damaged), expected));
}

void tst_CBatteryStatusWidgetPainting::nothingBeforeTheFirstResize()
{
    // render() sends the pending resize to a hidden widget first: the event itself is what counts.
    ui::CBatteryStatusWidget battery;
    battery.setAttribute(Qt::WA_PendingResizeEvent, false);
    battery.setBatteryCharging(true);
    const QImage image = test::paintedBy(battery);
    QCOMPARE(image, test::canvas(battery.size()));
}

void tst_CBatteryStatusWidgetPainting::symbolLargerThanTheWidget()
{
    Pair pair(QSize(60, 12));
    pair.setPercent(50);
    QVERIFY(pair.agree());
}

void tst_CBatteryStatusWidgetPainting::noRoomForTheBody()
{
    // Twice the frame is 8: no body at all, and then one of negative extent, which nothing guards against.
    for (int width : {8, 7, 6, 3}) {
        Pair pair(QSize(width, 40));
        QVERIFY(pair.picture.body.width() <= 0);
        QVERIFY(pair.agree());
    }
}

void tst_CBatteryStatusWidgetPainting::rightToLeftChangesNothing()
{
    Pair pair(QSize(100, 80));
    pair.setPercent(40);
    pair.setCharging(true);
    pair.battery.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(pair.agree());
}

int main(int argc, char** argv)
{
    return test::run<tst_CBatteryStatusWidgetPainting>(argc, argv);
}

#include "tst_CBatteryStatusWidgetPainting.moc"
