#include "Painting.h"
#include "Palettes.h"
#include "TestApplication.h"

#include <ui/ScrollIndicatorBar.h>

#include <QPainter>

#include <limits>

using ui::widgets::ScrollIndicatorBar;

namespace {

using Limits = std::numeric_limits<int>;

/// The state of a bar, and where its handle has to be.
struct Look {
    Qt::Orientation orientation = Qt::Vertical;
    QSize size = QSize(5, 220);
    int minimum = 0;
    int maximum = 100;
    int pageStep = 10;
    int value = 0;
    int handleStart = 0; ///< Along the orientation, from the left or the top.
    int handleLength = 20;
    bool highlighted = false;
    bool enabled = true;
    bool inverted = false;
    QPalette palette = test::lightPalette();
    qreal dpr = 1.0;
    Qt::LayoutDirection direction = Qt::LeftToRight;

    Look& horizontal()
    {
        orientation = Qt::Horizontal;
        size.transpose();
        return *this;
    }
    QColor color(QPalette::ColorRole role) const
    {
        return palette.color(enabled ? QPalette::Active : QPalette::Disabled, role);
    }
};

void apply(Look& look, ScrollIndicatorBar& bar)
{
    bar.setOrientation(look.orientation);
    bar.resize(look.size);
    bar.setRange(look.minimum, look.maximum);
    bar.setPageStep(look.pageStep);
    bar.setValue(look.value);
    bar.setHighlightBar(look.highlighted);
    bar.setEnabled(look.enabled);
    bar.setInvertedAppearance(look.inverted);
    bar.setPalette(look.palette);
    bar.setLayoutDirection(look.direction);
    look.palette = bar.palette(); // with what it takes from the application's
}

QColor derived(const QColor& button, double saturation, double value)
{
    return QColor::fromHsv(button.hsvHue(), std::min(255, int(button.hsvSaturation() * saturation)),
                           std::min(255, int(button.value() * value)));
}

QColor groove(const Look& look)
{
    const QColor window = look.color(QPalette::Window);
    return window.lightness() <= 120 ? window : derived(look.color(QPalette::Button), 2.6, 0.9);
}

QColor firstLine(const Look& look)
{
    return look.highlighted && look.enabled ? look.color(QPalette::Highlight)
                                            : derived(look.color(QPalette::Button), 1.9, 0.7);
}

void drawLine(QPainter& painter, const Look& look, int index, const QColor& color)
{
    const int inset = index == 0 || index == 4;
    const int first = look.handleStart + inset;
    const int last = look.handleStart + look.handleLength - 1 - inset;
    painter.setPen(QPen(color, 1));
    if (look.orientation == Qt::Horizontal)
        painter.drawLine(first, index, last, index);
    else
        painter.drawLine(index, first, index, last);
}

QImage expected(const Look& look)
{
    QImage image = test::canvas(look.size, look.dpr, groove(look));
    QPainter painter(&image);
    QColor color = firstLine(look);
    for (int i = 0; i < 5; ++i) {
        drawLine(painter, look, i, color);
        color = color.darker(108);
    }
    return image;
}

QPalette paletteWith(QPalette::ColorRole role, const QColor& color)
{
    QPalette palette = test::lightPalette();
    palette.setColor(role, color);
    return palette;
}

} // namespace

Q_DECLARE_METATYPE(Look)

class tst_ScrollIndicatorBarPainting : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void colours_data();
    void colours();
    void namedColours();
    void handles_data();
    void handles();
    void handlesOfHugeRanges_data();
    void handlesOfHugeRanges();
    void thickBarsKeepSlimHandles_data();
    void thickBarsKeepSlimHandles();
    void onePixelHandleRunsBackwards();
    void paintsOnlyWhereDamaged_data();
    void paintsOnlyWhereDamaged();
    void fillsBoundingRectangleOfDamage();
    void survivesAbsurdRanges_data();
    void survivesAbsurdRanges();
};

void tst_ScrollIndicatorBarPainting::colours_data()
{
    QTest::addColumn<Look>("look");
    const auto row = [](const char* name, auto change) {
        Look look;
        change(look);
        QTest::newRow(name) << look;
        QTest::newRow(QByteArray(name) + ", horizontal") << look.horizontal();
    };
    row("light", [](Look&) {});
    row("light, highlighted", [](Look& look) { look.highlighted = true; });
    row("light, disabled", [](Look& look) { look.enabled = false; });
    row("highlighted and disabled", [](Look& look) {
        look.highlighted = true;
        look.enabled = false;
    });
    row("dark", [](Look& look) { look.palette = test::darkPalette(); });
    row("dark, highlighted", [](Look& look) {
        look.palette = test::darkPalette();
        look.highlighted = true;
    });
    row("darkest of the light",
        [](Look& look) { look.palette = paletteWith(QPalette::Window, QColor(121, 121, 121)); });
    row("lightest of the dark",
        [](Look& look) { look.palette = paletteWith(QPalette::Window, QColor(120, 120, 120)); });
    row("colourful button",
        [](Look& look) { look.palette = paletteWith(QPalette::Button, QColor(90, 150, 201)); });
    row("saturated button",
        [](Look& look) { look.palette = paletteWith(QPalette::Button, QColor(240, 20, 99)); });
    row("colourful highlight", [](Look& look) {
        look.palette = paletteWith(QPalette::Highlight, QColor(203, 77, 31));
        look.highlighted = true;
    });
    row("highlight in HSL", [](Look& look) {
        look.palette = paletteWith(QPalette::Highlight, QColor::fromHsl(217, 143, 91));
        look.highlighted = true;
    });
    row("telltale, enabled", [](Look& look) {
        look.palette = test::telltalePalette();
        look.highlighted = true;
    });
    row("telltale, disabled", [](Look& look) {
        look.palette = test::telltalePalette();
        look.enabled = false;
    });
    row("dpr 2", [](Look& look) { look.dpr = 2.0; });
}

void tst_ScrollIndicatorBarPainting::colours()
{
    QFETCH(Look, look);
    ScrollIndicatorBar bar;
    apply(look, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar, look.dpr), expected(look)));
}

// The same in numbers that were worked out by hand.
void tst_ScrollIndicatorBarPainting::namedColours()
{
    ScrollIndicatorBar bar;
    Look look;
    look.palette = paletteWith(QPalette::Button, QColor::fromHsv(210, 60, 200));
    apply(look, bar);
    const QImage image = test::paintedBy(bar);
    QCOMPARE(image.pixelColor(0, 100), QColor(QColor::fromHsv(210, 156, 180).rgb()));
    const int values[] = {140, 129, 120, 111, 102};
    for (int i = 0; i < 5; ++i) {
        const QColor line = image.pixelColor(i, 10);
        QVERIFY2(qAbs(line.value() - values[i]) <= 1, qPrintable(line.name()));
        QVERIFY2(qAbs(line.hsvSaturation() - 114) <= 2, qPrintable(line.name()));
    }
}

void tst_ScrollIndicatorBarPainting::handles_data()
{
    QTest::addColumn<Look>("look");
    const auto row = [](const char* name, int minimum, int maximum, int pageStep, int value,
                        int start, int length) {
        Look look;
        look.minimum = minimum;
        look.maximum = maximum;
        look.pageStep = pageStep;
        look.value = value;
        look.handleStart = start;
        look.handleLength = length;
        QTest::newRow(name) << look;
        Look upsideDown = look;
        upsideDown.inverted = true;
        upsideDown.handleStart = minimum == maximum ? 0 : 220 - length - start;
        QTest::newRow(QByteArray(name) + ", inverted") << upsideDown;
        QTest::newRow(QByteArray(name) + ", horizontal") << look.horizontal();
        look.direction = Qt::RightToLeft;
        look.handleStart = 220 - length - start;
        QTest::newRow(QByteArray(name) + ", right to left") << look;
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

void tst_ScrollIndicatorBarPainting::handlesOfHugeRanges_data()
{
    QTest::addColumn<Look>("look");
    const auto row = [](const char* name, int minimum, int maximum, int value, int start,
                        int length) {
        Look look;
        look.minimum = minimum;
        look.maximum = maximum;
        look.pageStep = 0x3FFFFFFF;
        look.value = value;
        look.handleStart = start;
        look.handleLength = length;
        QTest::newRow(name) << look;
        QTest::newRow(QByteArray(name) + ", horizontal") << look.horizontal();
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

void tst_ScrollIndicatorBarPainting::handlesOfHugeRanges()
{
    QFETCH(Look, look);
    ScrollIndicatorBar bar;
    apply(look, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(look)));
}

void tst_ScrollIndicatorBarPainting::handles()
{
    QFETCH(Look, look);
    ScrollIndicatorBar bar;
    apply(look, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(look)));
}

void tst_ScrollIndicatorBarPainting::thickBarsKeepSlimHandles_data()
{
    QTest::addColumn<Look>("look");
    Look look;
    look.size = QSize(17, 220);
    QTest::newRow("vertical, thick") << look;
    QTest::newRow("horizontal, thick") << look.horizontal();
    Look thin;
    thin.size = QSize(3, 220);
    QTest::newRow("vertical, thin") << thin;
    QTest::newRow("horizontal, thin") << thin.horizontal();
}

void tst_ScrollIndicatorBarPainting::thickBarsKeepSlimHandles()
{
    QFETCH(Look, look);
    ScrollIndicatorBar bar;
    apply(look, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(look)));
    look.direction = Qt::RightToLeft;
    look.handleStart = look.orientation == Qt::Horizontal ? 200 : 0;
    apply(look, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(look)));
}

// Shortened at both ends, a line of one pixel starts after it ends, and covers three.
void tst_ScrollIndicatorBarPainting::onePixelHandleRunsBackwards()
{
    Look look;
    look.pageStep = 0;
    look.value = 50;
    look.handleStart = 110;
    look.handleLength = 1;
    ScrollIndicatorBar bar;
    apply(look, bar);
    const QImage image = test::paintedBy(bar);
    QVERIFY(test::sameImage(image, expected(look)));
    for (int column : {0, 4}) {
        for (int y : {109, 110, 111})
            QVERIFY(image.pixelColor(column, y) != image.pixelColor(column, 0));
        QCOMPARE(image.pixelColor(column, 108), image.pixelColor(column, 0));
        QCOMPARE(image.pixelColor(column, 112), image.pixelColor(column, 0));
    }
    QCOMPARE(image.pixelColor(2, 109), image.pixelColor(2, 0));
    QCOMPARE(image.pixelColor(2, 111), image.pixelColor(2, 0));
}

void tst_ScrollIndicatorBarPainting::paintsOnlyWhereDamaged_data()
{
    QTest::addColumn<int>("pageStep");
    QTest::addColumn<QRect>("damaged");
    QTest::addColumn<bool>("reachesHandle");
    QTest::newRow("groove below") << 10 << QRect(0, 130, 5, 40) << false;
    QTest::newRow("just above the handle") << 10 << QRect(0, 60, 5, 40) << false;
    QTest::newRow("first row of the handle") << 10 << QRect(0, 60, 5, 41) << true;
    QTest::newRow("inside of the handle") << 10 << QRect(1, 105, 2, 5) << true;
    // Its outer lines reach a pixel further, but the handle's rectangle decides.
    QTest::newRow("beside a handle of one pixel") << 0 << QRect(0, 100, 5, 10) << false;
    QTest::newRow("a handle of one pixel") << 0 << QRect(0, 100, 5, 11) << true;
}

void tst_ScrollIndicatorBarPainting::paintsOnlyWhereDamaged()
{
    QFETCH(int, pageStep);
    QFETCH(QRect, damaged);
    QFETCH(bool, reachesHandle);
    Look look;
    look.value = 50;
    look.pageStep = pageStep;
    look.handleStart = pageStep == 0 ? 110 : 100;
    look.handleLength = pageStep == 0 ? 1 : 20;
    ScrollIndicatorBar bar;
    apply(look, bar);

    QImage image = test::canvas(look.size);
    QPainter painter(&image);
    painter.setClipRect(damaged);
    if (reachesHandle)
        painter.drawImage(0, 0, expected(look));
    else
        painter.fillRect(damaged, groove(look));
    painter.end();
    QVERIFY(test::sameImage(test::paintedBy(bar, 1.0, damaged), image));
}

// A damage in two pieces: the handle lies between them, within their bounding rectangle.
void tst_ScrollIndicatorBarPainting::fillsBoundingRectangleOfDamage()
{
    Look look;
    look.value = 50;
    look.pageStep = 0;
    look.handleStart = 110;
    look.handleLength = 1;
    ScrollIndicatorBar bar;
    apply(look, bar);
    const QRegion damaged = QRegion(0, 60, 5, 50) + QRegion(0, 111, 5, 40);

    QImage image = test::canvas(look.size);
    QPainter painter(&image);
    painter.setClipRegion(damaged);
    painter.drawImage(0, 0, expected(look));
    painter.end();
    QVERIFY(test::sameImage(test::paintedBy(bar, 1.0, damaged), image));
}

void tst_ScrollIndicatorBarPainting::survivesAbsurdRanges_data()
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

void tst_ScrollIndicatorBarPainting::survivesAbsurdRanges()
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

int main(int argc, char** argv)
{
    return test::run<tst_ScrollIndicatorBarPainting>(argc, argv);
}

#include "tst_ScrollIndicatorBarPainting.moc"
