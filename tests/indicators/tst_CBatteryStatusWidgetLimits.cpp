#include "BatteryState.h"
#include "Painting.h"
#include "TestApplication.h"

#include <climits>

using test::BatteryState;
using ui::CBatteryStatusWidget;

Q_DECLARE_METATYPE(QMargins)

namespace {

const QVector<int> extremeInts = {INT_MIN, INT_MIN + 1, -70000,      -1,     0,
                                  1,       70000,       INT_MAX - 1, INT_MAX};

/// Whether every edge leaves room for sums with and differences to other edges.
bool isBounded(const QRect& rect)
{
    for (const int edge : {rect.left(), rect.top(), rect.right(), rect.bottom()}) {
        if (edge < -INT_MAX / 2 || edge > INT_MAX / 2)
            return false;
    }
    return true;
}

void resized(CBatteryStatusWidget& widget, const QSize& size)
{
    widget.resize(size);
    QResizeEvent event(size, QSize());
    QCoreApplication::sendEvent(&widget, &event);
}

/// Paints every state of \a widget near its origin and near its far corner.
void paintEveryState(CBatteryStatusWidget& widget)
{
    const QSize view(60, 60);
    for (const QPoint& origin :
         {QPoint(0, 0), widget.rect().center(), widget.rect().bottomRight()}) {
        for (const int percent : {0, 50, 100}) {
            for (const bool present : {true, false}) {
                widget.setChargePercentage(percent);
                widget.setBatteryPresent(present);
                widget.setBatteryCharging(true);
                QImage image = test::canvas(view);
                widget.render(&image, QPoint(), QRect(origin, view), QWidget::RenderFlags());
            }
        }
    }
}

} // namespace

class tst_CBatteryStatusWidgetLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresAreCutOff();
    void measuresOfEveryExtreme();
    void layoutAndPainting_data();
    void layoutAndPainting();
    void frameWidthWithoutResize();
    void percentages();
    void invalidColor();
};

void tst_CBatteryStatusWidgetLimits::measuresAreCutOff()
{
    CBatteryStatusWidget widget;
    QCOMPARE(widget.getBatteryRectWidth(INT_MIN), INT_MIN);
    QCOMPARE(widget.getBatteryRectHeight(INT_MAX), INT_MAX);
    QCOMPARE(widget.getBatteryRectHeight(INT_MIN), INT_MIN + 1);
    QCOMPARE(widget.getTotalHeight(INT_MAX, INT_MAX), INT_MAX);
    QCOMPARE(widget.getTotalHeight(INT_MIN, INT_MIN), INT_MIN);
    QCOMPARE(widget.heightForWidth(INT_MAX), INT_MAX);

    // The last ones whose results fit.
    QCOMPARE(widget.getBatteryRectWidth(INT_MIN + 4), INT_MIN);
    QCOMPARE(widget.getBatteryRectHeight(1327245764), INT_MAX - 1);
    QCOMPARE(widget.getBatteryRectHeight(-1327245764), -(INT_MAX - 1));
    QCOMPARE(widget.getTopRectWidth(INT_MAX), 663622882);
}

void tst_CBatteryStatusWidgetLimits::measuresOfEveryExtreme()
{
    CBatteryStatusWidget widget;
    for (const int frameWidth : extremeInts) {
        widget.setFrameWidth(frameWidth);
        for (const int value : extremeInts) {
            // Larger arguments never give smaller measures.
            QVERIFY(widget.getBatteryRectWidth(value) <= widget.getBatteryRectWidth(INT_MAX));
            QVERIFY(widget.getBatteryRectHeight(value) <= widget.getBatteryRectHeight(INT_MAX));
            QVERIFY(widget.getTopRectWidth(value) <= widget.getTopRectWidth(INT_MAX));
            QVERIFY(widget.getTotalHeight(value, value) <= widget.getTotalHeight(INT_MAX, value));
            QVERIFY(widget.widthForHeight(value) <= widget.widthForHeight(INT_MAX));
            QVERIFY(widget.heightForWidth(value) <= widget.heightForWidth(INT_MAX));
        }
    }
}

void tst_CBatteryStatusWidgetLimits::layoutAndPainting_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QMargins>("margins");
    const int huge = QWIDGETSIZE_MAX;
    QTest::newRow("nothing") << QSize(0, 0) << QMargins();
    QTest::newRow("one pixel") << QSize(1, 1) << QMargins();
    QTest::newRow("usual") << QSize(40, 80) << QMargins();
    QTest::newRow("margins larger than the widget") << QSize(40, 80) << QMargins(50, 50, 50, 50);
    QTest::newRow("largest margins")
        << QSize(40, 80) << QMargins(INT_MAX, INT_MAX, INT_MAX, INT_MAX);
    QTest::newRow("huge negative margins") << QSize(40, 80) << QMargins(-huge, -huge, -huge, -huge);
    QTest::newRow("huge") << QSize(huge, huge) << QMargins();
    QTest::newRow("huge width") << QSize(huge, 60) << QMargins();
    QTest::newRow("huge height") << QSize(60, huge) << QMargins();
}

void tst_CBatteryStatusWidgetLimits::layoutAndPainting()
{
    QFETCH(QSize, size);
    QFETCH(QMargins, margins);
    for (const int frameWidth : extremeInts) {
        CBatteryStatusWidget widget;
        widget.setFrameWidth(frameWidth);
        widget.setContentsMargins(margins);
        resized(widget, size);
        const BatteryState state(widget);
        QVERIFY(isBounded(state.body));
        QVERIFY(isBounded(state.top));
        QVERIFY(isBounded(state.bolt));
        paintEveryState(widget);
    }
}

void tst_CBatteryStatusWidgetLimits::frameWidthWithoutResize()
{
    for (const int frameWidth : extremeInts) {
        CBatteryStatusWidget widget;
        resized(widget, QSize(40, 80));
        widget.setFrameWidth(frameWidth);
        paintEveryState(widget);
    }
}

void tst_CBatteryStatusWidgetLimits::percentages()
{
    CBatteryStatusWidget widget;
    for (const int percent : extremeInts) {
        widget.setChargePercentage(percent);
        QCOMPARE(BatteryState(widget).charge, percent > 1 ? 1.0 : percent == 1 ? 0.01 : 0.0);
    }
}

void tst_CBatteryStatusWidgetLimits::invalidColor()
{
    CBatteryStatusWidget widget;
    widget.setFillColor(QColor());
    widget.setChargePercentage(100);
    resized(widget, QSize(40, 80));
    const QImage image = test::paintedBy(widget);
    QCOMPARE(image.pixelColor(20, 40), QColor(Qt::black));
}

const test::Registration<tst_CBatteryStatusWidgetLimits> registration;

#include "tst_CBatteryStatusWidgetLimits.moc"
