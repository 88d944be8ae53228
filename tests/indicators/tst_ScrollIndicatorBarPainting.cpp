#include "Painting.h"
#include "Palettes.h"
#include "ScrollIndicatorAppearance.h"
#include "TestApplication.h"

#include <ui/ScrollIndicatorBar.h>

#include <QPainter>

using test::ScrollIndicatorAppearance;
using ui::widgets::ScrollIndicatorBar;

namespace {

using Appearance = ScrollIndicatorAppearance;

QPalette paletteWith(QPalette::ColorRole role, const QColor& color)
{
    QPalette palette = test::lightPalette();
    palette.setColor(role, color);
    return palette;
}

} // namespace

Q_DECLARE_METATYPE(Appearance)

class tst_ScrollIndicatorBarPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colours_data();
    void colours();
    void namedColours();
    void thickBarsKeepSlimHandles_data();
    void thickBarsKeepSlimHandles();
    void onePixelHandleRunsBackwards();
    void paintsOnlyWhereDamaged_data();
    void paintsOnlyWhereDamaged();
    void fillsBoundingRectangleOfDamage();
};

void tst_ScrollIndicatorBarPainting::colours_data()
{
    QTest::addColumn<Appearance>("appearance");
    const auto row = [](const char* name, auto change) {
        Appearance appearance;
        change(appearance);
        QTest::newRow(name) << appearance;
        QTest::newRow(QByteArray(name) + ", horizontal") << appearance.horizontal();
    };
    row("light", [](Appearance&) {});
    row("light, highlighted", [](Appearance& appearance) { appearance.highlighted = true; });
    row("light, disabled", [](Appearance& appearance) { appearance.enabled = false; });
    row("highlighted and disabled", [](Appearance& appearance) {
        appearance.highlighted = true;
        appearance.enabled = false;
    });
    row("dark", [](Appearance& appearance) { appearance.palette = test::darkPalette(); });
    row("dark, highlighted", [](Appearance& appearance) {
        appearance.palette = test::darkPalette();
        appearance.highlighted = true;
    });
    row("darkest of the light", [](Appearance& appearance) {
        appearance.palette = paletteWith(QPalette::Window, QColor(121, 121, 121));
    });
    row("lightest of the dark", [](Appearance& appearance) {
        appearance.palette = paletteWith(QPalette::Window, QColor(120, 120, 120));
    });
    row("colourful button", [](Appearance& appearance) {
        appearance.palette = paletteWith(QPalette::Button, QColor(90, 150, 201));
    });
    row("saturated button", [](Appearance& appearance) {
        appearance.palette = paletteWith(QPalette::Button, QColor(240, 20, 99));
    });
    row("colourful highlight", [](Appearance& appearance) {
        appearance.palette = paletteWith(QPalette::Highlight, QColor(203, 77, 31));
        appearance.highlighted = true;
    });
    row("highlight in HSL", [](Appearance& appearance) {
        appearance.palette = paletteWith(QPalette::Highlight, QColor::fromHsl(217, 143, 91));
        appearance.highlighted = true;
    });
    row("telltale, enabled", [](Appearance& appearance) {
        appearance.palette = test::telltalePalette();
        appearance.highlighted = true;
    });
    row("telltale, disabled", [](Appearance& appearance) {
        appearance.palette = test::telltalePalette();
        appearance.enabled = false;
    });
    row("dpr 2", [](Appearance& appearance) { appearance.dpr = 2.0; });
}

void tst_ScrollIndicatorBarPainting::colours()
{
    QFETCH(Appearance, appearance);
    ScrollIndicatorBar bar;
    apply(appearance, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar, appearance.dpr), expected(appearance)));
}

// The same in numbers that were worked out by hand.
void tst_ScrollIndicatorBarPainting::namedColours()
{
    ScrollIndicatorBar bar;
    Appearance appearance;
    appearance.palette = paletteWith(QPalette::Button, QColor::fromHsv(210, 60, 200));
    apply(appearance, bar);
    const QImage image = test::paintedBy(bar);
    QCOMPARE(image.pixelColor(0, 100), QColor(QColor::fromHsv(210, 156, 180).rgb()));
    const int values[] = {140, 129, 120, 111, 102};
    for (int i = 0; i < 5; ++i) {
        const QColor line = image.pixelColor(i, 10);
        QVERIFY2(qAbs(line.value() - values[i]) <= 1, qPrintable(line.name()));
        QVERIFY2(qAbs(line.hsvSaturation() - 114) <= 2, qPrintable(line.name()));
    }
}

void tst_ScrollIndicatorBarPainting::thickBarsKeepSlimHandles_data()
{
    QTest::addColumn<Appearance>("appearance");
    Appearance appearance;
    appearance.size = QSize(17, 220);
    QTest::newRow("vertical, thick") << appearance;
    QTest::newRow("horizontal, thick") << appearance.horizontal();
    Appearance thin;
    thin.size = QSize(3, 220);
    QTest::newRow("vertical, thin") << thin;
    QTest::newRow("horizontal, thin") << thin.horizontal();
}

void tst_ScrollIndicatorBarPainting::thickBarsKeepSlimHandles()
{
    QFETCH(Appearance, appearance);
    ScrollIndicatorBar bar;
    apply(appearance, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(appearance)));
    appearance.direction = Qt::RightToLeft;
    appearance.handleStart = appearance.orientation == Qt::Horizontal ? 200 : 0;
    apply(appearance, bar);
    QVERIFY(test::sameImage(test::paintedBy(bar), expected(appearance)));
}

// Shortened at both ends, a line of one pixel starts after it ends, and covers three.
void tst_ScrollIndicatorBarPainting::onePixelHandleRunsBackwards()
{
    Appearance appearance;
    appearance.pageStep = 0;
    appearance.value = 50;
    appearance.handleStart = 110;
    appearance.handleLength = 1;
    ScrollIndicatorBar bar;
    apply(appearance, bar);
    const QImage image = test::paintedBy(bar);
    QVERIFY(test::sameImage(image, expected(appearance)));
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
    Appearance appearance;
    appearance.value = 50;
    appearance.pageStep = pageStep;
    appearance.handleStart = pageStep == 0 ? 110 : 100;
    appearance.handleLength = pageStep == 0 ? 1 : 20;
    ScrollIndicatorBar bar;
    apply(appearance, bar);

    QImage image = test::canvas(appearance.size);
    QPainter painter(&image);
    painter.setClipRect(damaged);
    if (reachesHandle)
        painter.drawImage(0, 0, expected(appearance));
    else
        painter.fillRect(damaged, appearance.groove());
    painter.end();
    QVERIFY(test::sameImage(test::paintedBy(bar, 1.0, damaged), image));
}

// A damage in two pieces: the handle lies between them, within their bounding rectangle.
void tst_ScrollIndicatorBarPainting::fillsBoundingRectangleOfDamage()
{
    Appearance appearance;
    appearance.value = 50;
    appearance.pageStep = 0;
    appearance.handleStart = 110;
    appearance.handleLength = 1;
    ScrollIndicatorBar bar;
    apply(appearance, bar);
    const QRegion damaged = QRegion(0, 60, 5, 50) + QRegion(0, 111, 5, 40);

    QImage image = test::canvas(appearance.size);
    QPainter painter(&image);
    painter.setClipRegion(damaged);
    painter.drawImage(0, 0, expected(appearance));
    painter.end();
    QVERIFY(test::sameImage(test::paintedBy(bar, 1.0, damaged), image));
}

const test::Registration<tst_ScrollIndicatorBarPainting> registration;

#include "tst_ScrollIndicatorBarPainting.moc"
