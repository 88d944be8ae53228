#include "BatteryPicture.h"
#include "PaintRecorder.h"
#include "TestApplication.h"

#include <ui/CBatteryStatusWidget.h>

#include <QVBoxLayout>

#include <climits>

Q_DECLARE_METATYPE(QMargins)

namespace {

/// A shown battery whose first paint has been seen.
struct Shown
{
    explicit Shown(const QSize& size = QSize(40, 80))
    {
        battery.setWindowFlag(Qt::FramelessWindowHint);
        battery.resize(size);
        battery.show();
        ready = QTest::qWaitForWindowExposed(&battery);
        recorder.takeRegions();
    }

    ui::CBatteryStatusWidget battery;
    test::PaintRecorder recorder{&battery};
    bool ready = false;
};

QVector<QRegion> only(const QRect& rect)
{
    return {QRegion(rect)};
}

} // namespace

class tst_CBatteryStatusWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void publicFace();
    void sizePolicyHasHeightForWidth();
    void geometryFunctions();
    void heightForWidth_data();
    void heightForWidth();
    void layOut_data();
    void layOut();
    void layoutKeepsTheProportions();
    void chargeRepaintsTheBodyAlone();
    void equalChargeRepaintsNothing_data();
    void equalChargeRepaintsNothing();
    void clampedChargeRepaintsEachTime_data();
    void clampedChargeRepaintsEachTime();
    void absentBatteryKeepsItsChargeInSilence();
    void presenceAndChargingRepaintEverything();
    void fillColorAlwaysRepaintsTheBody();
    void frameWidthLeavesTheLayoutUntilTheNextResize();
    void nothingIsRepaintedBeforeTheFirstResize();
    void absurdValues_data();
    void absurdValues();
};

void tst_CBatteryStatusWidget::publicFace()
{
    QCOMPARE(ui::CBatteryStatusWidget::GOLDEN_RATIO, 1.618);
    const QMetaObject& meta = ui::CBatteryStatusWidget::staticMetaObject;
    QCOMPARE(meta.className(), "ui::CBatteryStatusWidget");
    QCOMPARE(meta.propertyCount(), QWidget::staticMetaObject.propertyCount());
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 3);
    for (const char* slot :
         {"setChargePercentage(int)", "setBatteryPresent(bool)", "setBatteryCharging(bool)"}) {
        const QMetaMethod method = meta.method(meta.indexOfMethod(slot));
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
    }
}

void tst_CBatteryStatusWidget::sizePolicyHasHeightForWidth()
{
    const QSizePolicy policy = ui::CBatteryStatusWidget().sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(policy.verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(policy.hasHeightForWidth());
    QVERIFY(!ui::CBatteryStatusWidget().sizeHint().isValid());
}

void tst_CBatteryStatusWidget::geometryFunctions()
{
    const ui::CBatteryStatusWidget battery;
    QCOMPARE(battery.getBatteryRectWidth(40), 36);
    QCOMPARE(battery.getBatteryRectHeight(32), 52);
    QCOMPARE(battery.getBatteryRectHeight(-32), -52);
    QCOMPARE(battery.getTopRectWidth(32), 10);
    QCOMPARE(battery.getTopRectHeight(10), 3);
    QCOMPARE(battery.getTotalHeight(52, 3), 59);
    QCOMPARE(battery.widthForHeight(80), 48);
    QCOMPARE(battery.widthForHeight(4), 4);
}

void tst_CBatteryStatusWidget::heightForWidth_data()
{
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");

    // 36 * 1.618 = 58.2, 36 / 3.236 = 11.1, 11 / 3.236 = 3.4; 58 + 3 + 4
    QTest::newRow("default") << 4 << QMargins() << 40 << 65;
    // 35 * 1.618 = 56.6, 35 / 3.236 = 10.8, 11 / 3.236 = 3.4; 57 + 3 + 5
    QTest::newRow("odd frame") << 5 << QMargins() << 40 << 65;
    // (40 - 1 - 4) - 4 = 31; 50.2, 9.6, 3.1; 50 + 3 + 4 + 2 + 8
    QTest::newRow("margins") << 4 << QMargins(1, 2, 4, 8) << 40 << 67;
    QTest::newRow("zero") << 4 << QMargins() << 4 << 4;
    // -4 * 1.618 = -6.5, -4 / 3.236 = -1.2, -1 / 3.236 = -0.3; -6 + 0 + 4
    QTest::newRow("negative body") << 4 << QMargins() << 0 << -2;
}

void tst_CBatteryStatusWidget::heightForWidth()
{
    QFETCH(int, frameWidth);
    QFETCH(QMargins, margins);
    QFETCH(int, width);

    ui::CBatteryStatusWidget battery;
    battery.setFrameWidth(frameWidth);
    battery.setContentsMargins(margins);
    QTEST(battery.heightForWidth(width), "height");
}

void tst_CBatteryStatusWidget::layOut_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QRect>("body");

    QTest::newRow("width-bound") << QSize(40, 80) << 4 << QMargins() << QRect(4, 13, 32, 52);
    QTest::newRow("height-bound") << QSize(100, 80) << 4 << QMargins() << QRect(30, 7, 40, 65);
    for (int width = 30; width <= 61; ++width) {
        for (int frameWidth : {1, 2, 3, 4, 5, 7}) {
            const QMargins margins(width % 3, 1, 2, width % 5);
            BatteryPicture picture;
            picture.frameWidth = frameWidth;
            picture.layOut(QRect(QPoint(), QSize(width, 83)).marginsRemoved(margins));
            QTest::addRow("%d wide, frame of %d", width, frameWidth)
                << QSize(width, 83) << frameWidth << margins << picture.body;
        }
    }
}

void tst_CBatteryStatusWidget::layOut()
{
    QFETCH(QSize, size);
    QFETCH(int, frameWidth);
    QFETCH(QMargins, margins);
    QFETCH(QRect, body);

    Shown shown;
    QVERIFY(shown.ready);
    shown.battery.setFrameWidth(frameWidth);
    shown.battery.setContentsMargins(margins);
    shown.battery.resize(size);
    shown.recorder.takeRegions();

    // A change of the charge damages the body and nothing else.
    shown.battery.setChargePercentage(50);
    QCOMPARE(shown.recorder.takeRegions(), only(body));
}

void tst_CBatteryStatusWidget::layoutKeepsTheProportions()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* battery = new ui::CBatteryStatusWidget(&window);
    layout->addWidget(battery);
    layout->addStretch();
    window.resize(40, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(battery->size(), QSize(window.width(), battery->heightForWidth(window.width())));
}

void tst_CBatteryStatusWidget::chargeRepaintsTheBodyAlone()
{
    Shown shown;
    QVERIFY(shown.ready);
    for (int percent : {1, 50, 100, 99, 0}) {
        shown.battery.setChargePercentage(percent);
        QCOMPARE(shown.recorder.takeRegions(), only(QRect(4, 13, 32, 52)));
    }
}

void tst_CBatteryStatusWidget::equalChargeRepaintsNothing_data()
{
    QTest::addColumn<int>("percent");
    for (int percent = 0; percent <= 100; ++percent)
        QTest::addRow("%d", percent) << percent; // 29, 57 and 58 are not exact as fractions
}

void tst_CBatteryStatusWidget::equalChargeRepaintsNothing()
{
    QFETCH(int, percent);
    Shown shown;
    QVERIFY(shown.ready);
    shown.battery.setChargePercentage(percent);
    shown.recorder.takeRegions();
    shown.battery.setChargePercentage(percent);
    QVERIFY(shown.recorder.takeRegions().isEmpty());
}

void tst_CBatteryStatusWidget::clampedChargeRepaintsEachTime_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("stored");
    for (int percent : {150, 101, INT_MAX})
        QTest::addRow("%d", percent) << percent << 100;
    for (int percent : {-5, -1, INT_MIN})
        QTest::addRow("%d", percent) << percent << 0;
}

void tst_CBatteryStatusWidget::clampedChargeRepaintsEachTime()
{
    QFETCH(int, percent);
    QFETCH(int, stored);
    Shown shown;
    QVERIFY(shown.ready);
    for (int i = 0; i < 2; ++i) {
        shown.battery.setChargePercentage(percent);
        QCOMPARE(shown.recorder.takeRegions(), only(QRect(4, 13, 32, 52)));
    }
    shown.battery.setChargePercentage(stored); // equal to what was stored
    QVERIFY(shown.recorder.takeRegions().isEmpty());
}

void tst_CBatteryStatusWidget::absentBatteryKeepsItsChargeInSilence()
{
    Shown shown;
    QVERIFY(shown.ready);
    shown.battery.setBatteryPresent(false);
    shown.recorder.takeRegions();

    shown.battery.setChargePercentage(70);
    shown.battery.setFillColor(Qt::red);
    QVERIFY(shown.recorder.takeRegions().isEmpty());

    shown.battery.setBatteryPresent(true);
    shown.recorder.takeRegions();
    shown.battery.setChargePercentage(70);
    QVERIFY(shown.recorder.takeRegions().isEmpty());
}

void tst_CBatteryStatusWidget::presenceAndChargingRepaintEverything()
{
    Shown shown;
    QVERIFY(shown.ready);
    const auto everything = only(shown.battery.rect());

    shown.battery.setBatteryPresent(true);
    shown.battery.setBatteryCharging(false);
    QVERIFY(shown.recorder.takeRegions().isEmpty());
    shown.battery.setBatteryCharging(true);
    QCOMPARE(shown.recorder.takeRegions(), everything);
    shown.battery.setBatteryCharging(true);
    QVERIFY(shown.recorder.takeRegions().isEmpty());
    shown.battery.setBatteryPresent(false);
    QCOMPARE(shown.recorder.takeRegions(), everything);
    shown.battery.setBatteryCharging(false); // kept apart from presence, and repainted as well
    QCOMPARE(shown.recorder.takeRegions(), everything);
}

void tst_CBatteryStatusWidget::fillColorAlwaysRepaintsTheBody()
{
    Shown shown;
    QVERIFY(shown.ready);
    for (int i = 0; i < 2; ++i) {
        shown.battery.setFillColor(Qt::blue); // the same as before
        QCOMPARE(shown.recorder.takeRegions(), only(QRect(4, 13, 32, 52)));
    }
}

void tst_CBatteryStatusWidget::frameWidthLeavesTheLayoutUntilTheNextResize()
{
    Shown shown;
    QVERIFY(shown.ready);
    shown.battery.setFrameWidth(4);
    QVERIFY(shown.recorder.takeRegions().isEmpty());

    shown.battery.setFrameWidth(5);
    QCOMPARE(shown.recorder.takeRegions(), only(shown.battery.rect()));
    shown.battery.setChargePercentage(10);
    QCOMPARE(shown.recorder.takeRegions(), only(QRect(4, 13, 32, 52)));

    shown.battery.resize(41, 80);
    shown.recorder.takeRegions();
    BatteryPicture picture;
    picture.frameWidth = 5;
    picture.layOut(QRect(0, 0, 41, 80));
    shown.battery.setChargePercentage(20);
    QCOMPARE(shown.recorder.takeRegions(), only(picture.body));
}

void tst_CBatteryStatusWidget::nothingIsRepaintedBeforeTheFirstResize()
{
    ui::CBatteryStatusWidget battery;
    test::PaintRecorder recorder(&battery);
    battery.setChargePercentage(40);
    battery.setFillColor(Qt::green);
    QVERIFY(recorder.takeRegions().isEmpty());
}

void tst_CBatteryStatusWidget::absurdValues_data()
{
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<QSize>("size");
    for (int frameWidth : {INT_MIN, -1000000, -3, 0, 1, 1000, 1000000, INT_MAX}) {
        for (const QSize& size :
             {QSize(0, 0), QSize(1, 1), QSize(3, 200), QSize(200, 3), QSize(60, 90)})
            QTest::addRow("frame of %d, %dx%d", frameWidth, size.width(), size.height())
                << frameWidth << size;
    }
}

void tst_CBatteryStatusWidget::absurdValues()
{
    QFETCH(int, frameWidth);
    QFETCH(QSize, size);
    ui::CBatteryStatusWidget battery;
    battery.setFrameWidth(frameWidth);
    battery.setFillColor(QColor());
    battery.setBatteryCharging(true);
    battery.setContentsMargins(INT_MAX / 4, 0, INT_MAX / 4, INT_MAX / 4);
    for (int pass = 0; pass < 2; ++pass) {
        battery.resize(size);
        for (int percent : {INT_MIN, 50, INT_MAX}) {
            battery.setChargePercentage(percent);
            battery.setBatteryPresent(percent != 50);
            QCOMPARE(battery.grab(QRect(0, 0, 60, 90)).isNull(), size.isEmpty());
        }
        for (int extent : {INT_MIN, -1, 0, INT_MAX}) {
            battery.heightForWidth(extent);
            battery.widthForHeight(extent);
            battery.getBatteryRectWidth(extent);
            battery.getBatteryRectHeight(extent);
            battery.getTopRectHeight(extent);
            battery.getTotalHeight(extent, extent);
        }
        battery.setContentsMargins(0, 0, 0, 0);
        battery.resize(0, 0);
    }
}

int main(int argc, char** argv)
{
    return test::run<tst_CBatteryStatusWidget>(argc, argv);
}

#include "tst_CBatteryStatusWidget.moc"
