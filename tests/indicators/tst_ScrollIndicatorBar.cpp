#include "Painting.h"
#include "PaintRecorder.h"
#include "TestApplication.h"

#include <ui/ScrollIndicatorBar.h>

#include <QMetaMethod>
#include <QScrollArea>
#include <QSignalSpy>

using ui::widgets::ScrollIndicatorBar;

class tst_ScrollIndicatorBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructors();
    void isNotHighlightedAtFirst();
    void declaresOneSlot();
    void hasThicknessConstant();

    void hintsAtItsThickness_data();
    void hintsAtItsThickness();
    void isSlimInScrollArea();

    void repaintsOnHighlightChangeOnly();
    void highlightsThroughItsSlot();
    void behavesAsScrollBar();
};

void tst_ScrollIndicatorBar::constructors()
{
    QWidget parent;
    auto* bar = new ScrollIndicatorBar(&parent);
    QCOMPARE(bar->parentWidget(), &parent);
    QCOMPARE(bar->orientation(), Qt::Vertical);
    for (Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        auto* oriented = new ScrollIndicatorBar(orientation, &parent);
        QCOMPARE(oriented->parentWidget(), &parent);
        QCOMPARE(oriented->orientation(), orientation);
    }
    QVERIFY(!ScrollIndicatorBar().parent());
    QVERIFY(!ScrollIndicatorBar(Qt::Horizontal).parent());
}

void tst_ScrollIndicatorBar::isNotHighlightedAtFirst()
{
    ScrollIndicatorBar byParent;
    ScrollIndicatorBar byOrientation(Qt::Vertical);
    for (ScrollIndicatorBar* bar : {&byParent, &byOrientation}) {
        bar->resize(5, 100);
        const QImage image = test::paintedBy(*bar);
        bar->setHighlightBar(false);
        QVERIFY(test::sameImage(test::paintedBy(*bar), image));
        bar->setHighlightBar(true);
        QVERIFY(test::paintedBy(*bar) != image);
    }
}

void tst_ScrollIndicatorBar::declaresOneSlot()
{
    const QMetaObject& meta = ScrollIndicatorBar::staticMetaObject;
    QCOMPARE(meta.className(), "ui::widgets::ScrollIndicatorBar");
    QCOMPARE(meta.superClass(), &QScrollBar::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("setHighlightBar(bool)"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Public);
}

void tst_ScrollIndicatorBar::hasThicknessConstant()
{
    const int* exported = &ScrollIndicatorBar::PERPENDICULAR_SIZE;
    QCOMPARE(*exported, 5);
}

void tst_ScrollIndicatorBar::hintsAtItsThickness_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::newRow("style") << QString();
    QTest::newRow("style sheet") << QStringLiteral("QScrollBar { width: 30px; height: 30px; }");
}

void tst_ScrollIndicatorBar::hintsAtItsThickness()
{
    QFETCH(QString, styleSheet);
    for (Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        ScrollIndicatorBar bar(orientation);
        QScrollBar reference(orientation);
        bar.setStyleSheet(styleSheet);
        reference.setStyleSheet(styleSheet);
        QSize expected = reference.sizeHint();
        if (orientation == Qt::Vertical)
            expected.setWidth(5);
        else
            expected.setHeight(5);
        QCOMPARE(bar.sizeHint(), expected);
    }
}

void tst_ScrollIndicatorBar::isSlimInScrollArea()
{
    QScrollArea area;
    area.setFrameShape(QFrame::NoFrame);
    area.setVerticalScrollBar(new ScrollIndicatorBar);
    area.setHorizontalScrollBar(new ScrollIndicatorBar(Qt::Horizontal));
    auto* content = new QWidget;
    content->setFixedSize(500, 500);
    area.setWidget(content);
    area.resize(200, 100);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    QCOMPARE(area.viewport()->size(), QSize(195, 95));
}

void tst_ScrollIndicatorBar::repaintsOnHighlightChangeOnly()
{
    QWidget window;
    ScrollIndicatorBar bar(&window);
    bar.setGeometry(10, 10, 5, 100);
    test::PaintRecorder repaints(&bar);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    repaints.takeRegions();

    bar.setHighlightBar(false);
    QCOMPARE(repaints.takeRegions(), QVector<QRegion>());
    bar.setHighlightBar(true);
    QCOMPARE(repaints.takeRegions(), QVector<QRegion>{bar.rect()});
    bar.setHighlightBar(true);
    QCOMPARE(repaints.takeRegions(), QVector<QRegion>());
    bar.setHighlightBar(false);
    QCOMPARE(repaints.takeRegions(), QVector<QRegion>{bar.rect()});
}

void tst_ScrollIndicatorBar::highlightsThroughItsSlot()
{
    QWidget window;
    ScrollIndicatorBar bar(&window);
    bar.setGeometry(10, 10, 5, 100);
    test::PaintRecorder repaints(&bar);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    repaints.takeRegions();

    QVERIFY(QMetaObject::invokeMethod(&bar, "setHighlightBar", Q_ARG(bool, true)));
    QCOMPARE(repaints.takeRegions().size(), 1);
}

void tst_ScrollIndicatorBar::behavesAsScrollBar()
{
    ScrollIndicatorBar bar;
    bar.setRange(-5, 50);
    bar.setPageStep(7);
    QSignalSpy values(&bar, &QScrollBar::valueChanged);
    bar.setValue(60);
    QCOMPARE(bar.value(), 50);
    QCOMPARE(values.count(), 1);
    bar.triggerAction(QAbstractSlider::SliderPageStepSub);
    QCOMPARE(bar.value(), 43);
    bar.setSliderDown(true);
    bar.setSliderPosition(-9);
    QCOMPARE(bar.sliderPosition(), -5);
}

const test::Registration<tst_ScrollIndicatorBar> registration;

#include "tst_ScrollIndicatorBar.moc"
