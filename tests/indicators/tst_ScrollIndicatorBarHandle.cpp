#include "Painting.h"
#include "ScrollIndicatorAppearance.h"
#include "TestApplication.h"

#include <ui/ScrollIndicatorBar.h>

#include <limits>

using test::ScrollIndicatorAppearance;
using ui::widgets::ScrollIndicatorBar;

namespace {

using Limits = std::numeric_limits<int>;
using Appearance = ScrollIndicatorAppearance;

} // namespace

Q_DECLARE_METATYPE(Appearance)

/// Where the handle lies, and how long it is.
class tst_ScrollIndicatorBarHandle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handles_data();
    void handles();
    void handlesOfHugeRanges_data();
    void handlesOfHugeRanges();
    void followsTheSliderBeforeTheValue();
    void survivesAbsurdRanges_data();
    void survivesAbsurdRanges();
};

void tst_ScrollIndicatorBarHandle::handles_data()
{
    QTest::addColumn<Appearance>("appearance");
    const auto row = [](const char* name, int minimum, int maximum, int pageStep, int value,
                        int start, int length) {
        Appearance appearance;
        appearance.minimum = minimum;
        appearance.maximum = maximum;
        appearance.pageStep = pageStep;
        appearance.value = value;
        appearance.handleStart = start;
        appearance.handleLength = length;
        QTest::newRow(name) << appearance;
        Appearance upsideDown = appearance;
        upsideDown.inverted = true;
        upsideDown.handleStart = minimum == maximum ? 0 : 220 - length - start;
        QTest::newRow(QByteArray(name) + ", inverted") << upsideDown;
        QTest::newRow(QByteArray(name) + ", horizontal") << appearance.horizontal();
        appearance.direction = Qt::RightToLeft;
        appearance.handleStart = 220 - length - start;
        QTest::newRow(QByteArray(name) + ", right to left") << appearance;
    };
    row("at the start", 0, 100, 10, 0, 0, 20);
    row("in the middle", 0, 100, 10, 50, 100, 20);
    row("at the end", 0, 100, 10, 100, 200, 20);
    row("negative range", -80, -30, 60, -30, 100, 120);
    row("length truncated", 0, 100, 13, 0, 0, 25);
    row("no range", 7, 7, 10, 7, 0, 220);
    row("no page", 0, 100, 0, 0, 0, 1);
    row("page far beyond the range", 0, 1, Limits::max(), 0, 0, 219);
    row("shorter than a pixel", 0, 100000, 10, 100000, 219, 1);
}

void tst_ScrollIndicatorBarHandle::handles()
{
    QFETCH(Appearance, appearance);
    ScrollIndicatorBar bar;
    apply(appearance, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(appearance)));
}

void tst_ScrollIndicatorBarHandle::handlesOfHugeRanges_data()
{
    QTest::addColumn<Appearance>("appearance");
    const auto row = [](const char* name, int minimum, int maximum, int value, int start,
                        int length) {
        Appearance appearance;
        appearance.minimum = minimum;
        appearance.maximum = maximum;
        appearance.pageStep = 0x3FFFFFFF;
        appearance.value = value;
        appearance.handleStart = start;
        appearance.handleLength = length;
        QTest::newRow(name) << appearance;
        QTest::newRow(QByteArray(name) + ", horizontal") << appearance.horizontal();
    };
    constexpr int least = Limits::min();
    constexpr int most = Limits::max();
    row("largest range with a length", 0, 0x3FFFFFFF, 0, 0, 110);
    row("first range without", 0, 0x40000000, 0, 0, 1);
    row("largest int", 0, most, most, 219, 1);
    // QStyle truncates positions in ranges of this size.
    row("one beyond it, at the start", -1, most, -1, 0, 1);
    row("one beyond it, in the middle", -1, most, most / 2, 109, 1);
    row("one beyond it, at the end", -1, most, most, 218, 1);
    row("widest, at the start", least, most, least, 0, 1);
    row("widest, in the middle", least, most, 0, 109, 1);
    row("widest, at the end", least, most, most, 219, 1);
}

void tst_ScrollIndicatorBarHandle::handlesOfHugeRanges()
{
    QFETCH(Appearance, appearance);
    ScrollIndicatorBar bar;
    apply(appearance, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(appearance)));
}

void tst_ScrollIndicatorBarHandle::followsTheSliderBeforeTheValue()
{
    Appearance appearance;
    appearance.handleStart = 100;
    ScrollIndicatorBar bar;
    apply(appearance, bar);
    bar.setTracking(false);
    bar.setSliderDown(true);
    bar.setSliderPosition(50);
    QCOMPARE(bar.value(), 0);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(appearance)));
}

void tst_ScrollIndicatorBarHandle::survivesAbsurdRanges_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    const int values[] = {Limits::min(), Limits::min() + 1, -0x40000000,  -1, 0, 1,
                          0x40000000,    Limits::max() - 1, Limits::max()};
    for (int minimum : values) {
        for (int maximum : values)
            QTest::addRow("%d to %d", minimum, maximum) << minimum << maximum;
    }
}

void tst_ScrollIndicatorBarHandle::survivesAbsurdRanges()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    ScrollIndicatorBar bar;
    bar.setRange(minimum, maximum);
    for (int pageStep : {0, 1, 10, Limits::max(), Limits::min()}) {
        for (int value : {minimum, 0, maximum}) {
            for (const QSize& size : {QSize(5, 220), QSize(1, 1), QSize(5, 20000)}) {
                bar.setPageStep(pageStep);
                bar.setValue(value);
                bar.resize(size);
                test::paintedBy(bar, 1.0, QRect(0, 0, 5, 5));
            }
        }
    }
}

const test::Registration<tst_ScrollIndicatorBarHandle> registration;

#include "tst_ScrollIndicatorBarHandle.moc"
