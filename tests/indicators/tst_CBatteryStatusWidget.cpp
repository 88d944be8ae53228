#include "BatteryState.h"
#include "PaintRecorder.h"
#include "TestApplication.h"

#include <QMetaMethod>
#include <QVBoxLayout>

#include <climits>

using test::BatteryLayout;
using test::BatteryState;
using test::PaintRecorder;
using ui::CBatteryStatusWidget;

Q_DECLARE_METATYPE(QMargins)

namespace {

/// A battery on the screen, with nothing left to paint.
class ShownBattery
{
public:
    explicit ShownBattery(bool present = true)
        : recorder(&widget)
    {
        widget.resize(100, 160);
        widget.setBatteryPresent(present);
        widget.show();
        if (!QTest::qWaitForWindowExposed(&widget))
            qFatal("the window did not appear");
        recorder.takeRegions();
    }

    QVector<QRegion> body() const
    {
        return {BatteryState(widget).body};
    }
    QVector<QRegion> whole() const
    {
        return {widget.rect()};
    }

    CBatteryStatusWidget widget;
    PaintRecorder recorder;
};

void resized(CBatteryStatusWidget& widget, const QSize& size)
{
    widget.resize(size);
    QResizeEvent event(size, QSize());
    QCoreApplication::sendEvent(&widget, &event);
}

/// As an application has it that was built against the first library.
struct LaidOutBattery : QWidget
{
    int frameWidth;
    double cornerRadius;
    int flags;
    double charge;
    QRect body;
    QRect top;
    QRect bolt;
    QBrush fillBrush;
};

QVector<qintptr> fieldOffsets(const LaidOutBattery& battery)
{
    QVector<qintptr> offsets;
    const auto add = [&](const auto& field) {
        offsets.append(reinterpret_cast<qintptr>(&field) - reinterpret_cast<qintptr>(&battery));
    };
    add(battery.frameWidth);
    add(battery.cornerRadius);
    add(battery.flags);
    add(battery.charge);
    add(battery.body);
    add(battery.top);
    add(battery.bolt);
    add(battery.fillBrush);
    return offsets;
}

} // namespace

class tst_CBatteryStatusWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreLaidOutInOrder();
    void goldenRatio();
    void metaObject();
    void construction();
    void constructionWithParent();
    void chargeIsStored_data();
    void chargeIsStored();
    void everyPercentageIsKept();
    void flags();
    void frameWidth();

    void chargeRepaintsTheBody();
    void equalChargeRepaintsNothing();
    void clampedChargeRepaintsEachTime();
    void chargeOfAnAbsentBattery();
    void fillColorRepaintsTheBody();
    void fillColorOfAnAbsentBattery();
    void presenceRepaintsEverything();
    void chargingRepaintsEverything();
    void frameWidthRepaintsEverything();

    void measures_data();
    void measures();
    void heightForWidth_data();
    void heightForWidth();
    void heightForWidthInALayout();
    void nullBeforeTheFirstResize();
    void layout_data();
    void layout();
    void layoutOfManySizes();
    void layoutFollowsTheResizeOnly();
    void tooLowExtendsBothWays();
    void tooNarrowDegenerates();
};

void tst_CBatteryStatusWidget::fieldsAreLaidOutInOrder()
{
    QCOMPARE(sizeof(CBatteryStatusWidget), sizeof(LaidOutBattery));
    QCOMPARE(test::fieldOffsets(CBatteryStatusWidget()), fieldOffsets(LaidOutBattery()));
}

void tst_CBatteryStatusWidget::goldenRatio()
{
    QCOMPARE(CBatteryStatusWidget::GOLDEN_RATIO, 1.618);
    const double* const symbol = &CBatteryStatusWidget::GOLDEN_RATIO;
    QCOMPARE(*symbol, 1.618);
}

void tst_CBatteryStatusWidget::metaObject()
{
    const QMetaObject& meta = CBatteryStatusWidget::staticMetaObject;
    QCOMPARE(meta.className(), "ui::CBatteryStatusWidget");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());

    QList<QByteArray> slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        slotNames.append(meta.method(i).methodSignature());
    }
    QCOMPARE(slotNames,
             (QList<QByteArray>{"setChargePercentage(int)", "setBatteryPresent(bool)",
                                "setBatteryCharging(bool)"}));
}

void tst_CBatteryStatusWidget::construction()
{
    const CBatteryStatusWidget widget;
    const BatteryState state(widget);
    QCOMPARE(state.frameWidth, 4);
    QCOMPARE(state.cornerRadius, 6.472);
    QCOMPARE(state.flags, 1);
    QCOMPARE(state.charge, 0.0);
    QVERIFY(state.fillBrush);

    QVERIFY(!widget.parent());
    QCOMPARE(widget.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(widget.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QVERIFY(widget.sizePolicy().hasHeightForWidth());
    QVERIFY(widget.hasHeightForWidth());
    QCOMPARE(widget.sizeHint(), QSize());
    QCOMPARE(widget.minimumSizeHint(), QSize());
}

void tst_CBatteryStatusWidget::constructionWithParent()
{
    QWidget parent;
    QPointer<CBatteryStatusWidget> child(new CBatteryStatusWidget(&parent));
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(!child->isWindow());
}

void tst_CBatteryStatusWidget::chargeIsStored_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<double>("charge");
    QTest::newRow("1") << 1 << 0.01;
    QTest::newRow("50") << 50 << 0.5;
    QTest::newRow("99") << 99 << 0.99;
    QTest::newRow("100") << 100 << 1.0;
    QTest::newRow("101") << 101 << 1.0;
    QTest::newRow("150") << 150 << 1.0;
    QTest::newRow("largest") << INT_MAX << 1.0;
    QTest::newRow("0") << 0 << 0.0;
    QTest::newRow("-5") << -5 << 0.0;
    QTest::newRow("smallest") << INT_MIN << 0.0;
}

void tst_CBatteryStatusWidget::chargeIsStored()
{
    QFETCH(int, percent);
    QFETCH(double, charge);
    CBatteryStatusWidget widget;
    widget.setChargePercentage(33);
    QVERIFY(QMetaObject::invokeMethod(&widget, "setChargePercentage", Q_ARG(int, percent)));
    QCOMPARE(BatteryState(widget).charge, charge);
}

void tst_CBatteryStatusWidget::everyPercentageIsKept()
{
    CBatteryStatusWidget widget;
    for (int percent = 100; percent >= 0; --percent) {
        widget.setChargePercentage(percent);
        QCOMPARE(BatteryState(widget).charge, percent / 100.0);
    }
}

void tst_CBatteryStatusWidget::flags()
{
    CBatteryStatusWidget widget;
    const auto flagsAfter = [&widget](const char* slot, bool on) {
        QMetaObject::invokeMethod(&widget, slot, Q_ARG(bool, on));
        return BatteryState(widget).flags;
    };
    QCOMPARE(flagsAfter("setBatteryCharging", true), 3);
    QCOMPARE(flagsAfter("setBatteryCharging", true), 3);
    QCOMPARE(flagsAfter("setBatteryPresent", false), 2);
    QCOMPARE(flagsAfter("setBatteryPresent", false), 2);
    QCOMPARE(flagsAfter("setBatteryCharging", false), 0);
    QCOMPARE(flagsAfter("setBatteryPresent", true), 1);
}

void tst_CBatteryStatusWidget::frameWidth()
{
    CBatteryStatusWidget widget;
    widget.setFrameWidth(5);
    QCOMPARE(BatteryState(widget).frameWidth, 5);
    QCOMPARE(BatteryState(widget).cornerRadius, 8.09);
    widget.setFrameWidth(0);
    QCOMPARE(BatteryState(widget).frameWidth, 0);
    QCOMPARE(BatteryState(widget).cornerRadius, 0.0);
    widget.setFrameWidth(-2);
    QCOMPARE(BatteryState(widget).frameWidth, -2);
    QCOMPARE(BatteryState(widget).cornerRadius, -3.236);
}

void tst_CBatteryStatusWidget::chargeRepaintsTheBody()
{
    ShownBattery battery;
    battery.widget.setChargePercentage(57);
    QCOMPARE(battery.recorder.takeRegions(), battery.body());
}

void tst_CBatteryStatusWidget::equalChargeRepaintsNothing()
{
    ShownBattery battery;
    battery.widget.setChargePercentage(0);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    // The fractions of these, times 100, are just below the whole numbers.
    for (const int percent : {29, 57, 58, 100}) {
        battery.widget.setChargePercentage(percent);
        QCOMPARE(battery.recorder.takeRegions().size(), 1);
        battery.widget.setChargePercentage(percent);
        QCOMPARE(battery.recorder.takeRegions().size(), 0);
    }
}

void tst_CBatteryStatusWidget::clampedChargeRepaintsEachTime()
{
    ShownBattery battery;
    for (const int percent : {150, 150, -5, -5}) {
        battery.widget.setChargePercentage(percent);
        QCOMPARE(battery.recorder.takeRegions(), battery.body());
    }
    battery.widget.setChargePercentage(0);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
}

void tst_CBatteryStatusWidget::chargeOfAnAbsentBattery()
{
    ShownBattery battery(false);
    battery.widget.setChargePercentage(57);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    QCOMPARE(BatteryState(battery.widget).charge, 0.57);
}

void tst_CBatteryStatusWidget::fillColorRepaintsTheBody()
{
    ShownBattery battery;
    battery.widget.setFillColor(Qt::green);
    QCOMPARE(battery.recorder.takeRegions(), battery.body());

    const void* const brush = BatteryState(battery.widget).fillBrush;
    battery.widget.setFillColor(Qt::green);
    QCOMPARE(battery.recorder.takeRegions(), battery.body());
    QVERIFY2(BatteryState(battery.widget).fillBrush != brush, "the brush is built anew");
}

void tst_CBatteryStatusWidget::fillColorOfAnAbsentBattery()
{
    ShownBattery battery(false);
    const void* const brush = BatteryState(battery.widget).fillBrush;
    battery.widget.setFillColor(Qt::green);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    QVERIFY(BatteryState(battery.widget).fillBrush != brush);
}

void tst_CBatteryStatusWidget::presenceRepaintsEverything()
{
    ShownBattery battery;
    battery.widget.setBatteryPresent(true);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    battery.widget.setBatteryPresent(false);
    QCOMPARE(battery.recorder.takeRegions(), battery.whole());
    battery.widget.setBatteryPresent(false);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    battery.widget.setBatteryPresent(true);
    QCOMPARE(battery.recorder.takeRegions(), battery.whole());
}

void tst_CBatteryStatusWidget::chargingRepaintsEverything()
{
    ShownBattery battery;
    battery.widget.setBatteryCharging(false);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    battery.widget.setBatteryCharging(true);
    QCOMPARE(battery.recorder.takeRegions(), battery.whole());
    battery.widget.setBatteryCharging(true);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    battery.widget.setBatteryCharging(false);
    QCOMPARE(battery.recorder.takeRegions(), battery.whole());

    ShownBattery absent(false);
    absent.widget.setBatteryCharging(true);
    QCOMPARE(absent.recorder.takeRegions(), absent.whole());
}

void tst_CBatteryStatusWidget::frameWidthRepaintsEverything()
{
    ShownBattery battery;
    battery.widget.setFrameWidth(4);
    QCOMPARE(battery.recorder.takeRegions().size(), 0);
    battery.widget.setFrameWidth(5);
    QCOMPARE(battery.recorder.takeRegions(), battery.whole());
}

void tst_CBatteryStatusWidget::measures_data()
{
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<int>("argument");
    QTest::addColumn<int>("bodyWidth");
    QTest::addColumn<int>("bodyHeight");
    QTest::addColumn<int>("topSide");
    QTest::addColumn<int>("totalHeight");
    QTest::addColumn<int>("widthForHeight");

    // 250 × 1.618 = 404.5 and -250 × 1.618 = -404.5, rounded up both.
    QTest::newRow("zero") << 4 << 0 << -4 << 0 << 0 << 11 << 2;
    QTest::newRow("40") << 4 << 40 << 36 << 65 << 12 << 51 << 25;
    QTest::newRow("65") << 4 << 65 << 61 << 105 << 20 << 76 << 40;
    QTest::newRow("80") << 4 << 80 << 76 << 129 << 25 << 91 << 48;
    QTest::newRow("250") << 4 << 250 << 246 << 405 << 77 << 261 << 148;
    QTest::newRow("-250") << 4 << -250 << -254 << -404 << -77 << -239 << -144;
    QTest::newRow("no frame") << 0 << 80 << 80 << 129 << 25 << 87 << 47;
    QTest::newRow("negative frame") << -5 << 80 << 85 << 129 << 25 << 82 << 45;
    QTest::newRow("wide frame") << 50 << 80 << 30 << 129 << 25 << 137 << 68;
}

void tst_CBatteryStatusWidget::measures()
{
    QFETCH(int, frameWidth);
    QFETCH(int, argument);
    CBatteryStatusWidget widget;
    widget.setFrameWidth(frameWidth);
    QTEST(widget.getBatteryRectWidth(argument), "bodyWidth");
    QTEST(widget.getBatteryRectHeight(argument), "bodyHeight");
    QTEST(widget.getTopRectWidth(argument), "topSide");
    QTEST(widget.getTopRectHeight(argument), "topSide");
    QTEST(widget.getTotalHeight(argument, 7), "totalHeight");
    QTEST(widget.widthForHeight(argument), "widthForHeight");
}

void tst_CBatteryStatusWidget::heightForWidth_data()
{
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("default") << 4 << QMargins() << 40 << 65;
    QTest::newRow("margins") << 4 << QMargins(1, 20, 2, 300) << 43 << 385;
    QTest::newRow("odd frame") << 5 << QMargins() << 40 << 65;
    QTest::newRow("no frame") << 0 << QMargins() << 40 << 69;
    QTest::newRow("frame as wide as the widget") << 40 << QMargins() << 40 << 40;
    QTest::newRow("frame wider than the widget") << 50 << QMargins() << 40 << 33;
    QTest::newRow("no width") << 4 << QMargins() << 0 << -2;
}

void tst_CBatteryStatusWidget::heightForWidth()
{
    QFETCH(int, frameWidth);
    QFETCH(QMargins, margins);
    QFETCH(int, width);
    CBatteryStatusWidget widget;
    widget.setFrameWidth(frameWidth);
    widget.setContentsMargins(margins);
    QTEST(widget.heightForWidth(width), "height");
}

void tst_CBatteryStatusWidget::heightForWidthInALayout()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* battery = new CBatteryStatusWidget;
    layout->addWidget(battery);
    QVERIFY(layout->hasHeightForWidth());
    QCOMPARE(layout->heightForWidth(40), 65);
}

void tst_CBatteryStatusWidget::nullBeforeTheFirstResize()
{
    const CBatteryStatusWidget widget;
    const BatteryState state(widget);
    QCOMPARE(state.body, QRect());
    QCOMPARE(state.top, QRect());
    QCOMPARE(state.bolt, QRect());
}

void tst_CBatteryStatusWidget::layout_data()
{
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("top");
    QTest::addColumn<QRect>("body");
    QTest::addColumn<QRect>("bolt");

    const auto edges = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    QTest::newRow("as wide as it fits") << QMargins() << QSize(40, 80) << edges(15, 10, 24, 12)
                                        << edges(4, 13, 35, 64) << edges(14, 27, 33, 58);
    QTest::newRow("as high as it fits") << QMargins() << QSize(100, 80) << edges(44, 3, 55, 6)
                                        << edges(30, 7, 69, 71) << edges(41, 23, 65, 62);
    QTest::newRow("margins") << QMargins(10, 20, 30, 40) << QSize(80, 140) << edges(25, 30, 34, 32)
                             << edges(14, 33, 45, 84) << edges(24, 47, 43, 78);
}

void tst_CBatteryStatusWidget::layout()
{
    QFETCH(QMargins, margins);
    QFETCH(QSize, size);
    CBatteryStatusWidget widget;
    widget.setContentsMargins(margins);
    resized(widget, size);
    const BatteryState state(widget);
    QTEST(state.top, "top");
    QTEST(state.body, "body");
    QTEST(state.bolt, "bolt");
}

void tst_CBatteryStatusWidget::layoutOfManySizes()
{
    const QMargins margins(3, 1, 4, 6);
    for (const int frameWidth : {-3, 0, 1, 2, 3, 4, 5, 8, 13}) {
        CBatteryStatusWidget widget;
        widget.setFrameWidth(frameWidth);
        widget.setContentsMargins(margins);
        for (int width = 10; width < 90; width += 3) {
            for (int height = 10; height < 170; height += 7) {
                resized(widget, QSize(width, height));
                const BatteryLayout expected(widget.rect().marginsRemoved(margins), frameWidth);
                const BatteryState state(widget);
                QCOMPARE(state.top, expected.top);
                QCOMPARE(state.body, expected.body);
                QCOMPARE(state.bolt, expected.bolt);
            }
        }
    }
}

void tst_CBatteryStatusWidget::layoutFollowsTheResizeOnly()
{
    CBatteryStatusWidget widget;
    resized(widget, QSize(40, 80));
    const QRect before = BatteryState(widget).body;
    widget.setFrameWidth(5);
    QCOMPARE(BatteryState(widget).body, before);
    widget.setContentsMargins(5, 5, 5, 5);
    QCOMPARE(BatteryState(widget).body, before);
    resized(widget, QSize(40, 80));
    QCOMPARE(BatteryState(widget).body, BatteryLayout(QRect(5, 5, 30, 70), 5).body);
}

void tst_CBatteryStatusWidget::tooLowExtendsBothWays()
{
    CBatteryStatusWidget widget;
    widget.setFrameWidth(0);
    // Rounding makes the battery one pixel too high; half of that is truncated to nothing.
    resized(widget, QSize(100, 1));
    QCOMPARE(BatteryState(widget).body.top(), 0);
    QCOMPARE(BatteryState(widget).body.bottom(), 1);

    // A negative frame makes it far higher than its contents.
    widget.setFrameWidth(-40);
    resized(widget, QSize(100, 20));
    const BatteryState state(widget);
    QVERIFY(state.top.top() < 0);
    QVERIFY(state.body.bottom() > 20);
    QCOMPARE(state.body, BatteryLayout(QRect(0, 0, 100, 20), -40).body);
}

void tst_CBatteryStatusWidget::tooNarrowDegenerates()
{
    CBatteryStatusWidget widget;
    resized(widget, QSize(8, 80));
    QCOMPARE(BatteryState(widget).body.size(), QSize(0, 0));
    resized(widget, QSize(3, 80));
    QCOMPARE(BatteryState(widget).body.size(), QSize(-5, -8));
    QCOMPARE(BatteryState(widget).body, BatteryLayout(QRect(0, 0, 3, 80), 4).body);
}

const test::Registration<tst_CBatteryStatusWidget> registration;

#include "tst_CBatteryStatusWidget.moc"
