#include "EventCounter.h"
#include "Painting.h"
#include "PaintRecorder.h"
#include "QtVersions.h"
#include "TestApplication.h"

#include <ui/CRoundedFrame.h>

#include <QMetaProperty>
#include <QVBoxLayout>

#include <functional>
#include <limits>

using ui::CRoundedFrame;

namespace {

using Change = std::function<void(CRoundedFrame&)>;

/// What a widget says after it was given the same margin on every side: QWidget reports none below
/// zero, and keeps 16 bits.
QMargins evenMargins(int margin)
{
    QWidget widget;
    widget.setContentsMargins(margin, margin, margin, margin);
    return widget.contentsMargins();
}

int clampedToInt(qint64 value)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound(qint64(Limits::min()), value, qint64(Limits::max())));
}

/// A shown frame in a layout, with watches on its repaints and on the geometry updates it asks for.
struct Fixture
{
    Fixture()
        : frame(new CRoundedFrame)
        , repaints(frame)
        , layoutRequests(&window, QEvent::LayoutRequest)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(frame);
        window.resize(200, 150);
        window.show();
    }

    bool waitUntilIdle()
    {
        const bool exposed = QTest::qWaitForWindowExposed(&window);
        repaints.takeRegions();
        layoutRequests.take();
        return exposed;
    }

    QWidget window;
    CRoundedFrame* frame;
    test::PaintRecorder repaints;
    test::EventCounter layoutRequests;
};

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_CRoundedFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsPlainBox();
    void belongsToItsParent();
    void declaresItsProperties_data();
    void declaresItsProperties();
    void setsPropertiesByName();
    void takesPropertiesFromStyleSheet();

    void computesMargins_data();
    void computesMargins();
    void keepsMarginsOnShapeChange();
    void updatesMarginsOnRequest();

    void refreshesNarrowly_data();
    void refreshesNarrowly();
    void ignoresUnchangedValues_data();
    void ignoresUnchangedValues();

    void survivesAbsurdMetrics_data();
    void survivesAbsurdMetrics();
    void survivesAbsurdMetricsInLayout();
};

void tst_CRoundedFrame::startsAsPlainBox()
{
    CRoundedFrame frame;
    QCOMPARE(frame.radius(), 18);
    QCOMPARE(frame.lineWidth(), 2);
    QCOMPARE(frame.frameShadow(), QFrame::Plain);
    QCOMPARE(frame.frameShape(), CRoundedFrame::Box);
    QCOMPARE(frame.contentsMargins(), QMargins(8, 8, 8, 8));
    QVERIFY(frame.mask().isEmpty());
    QCOMPARE(frame.parentWidget(), nullptr);
    QCOMPARE(frame.windowFlags() & ~Qt::WindowType_Mask,
             QWidget().windowFlags() & ~Qt::WindowType_Mask);
}

void tst_CRoundedFrame::belongsToItsParent()
{
    QPointer<CRoundedFrame> frame;
    {
        QWidget parent;
        frame = new CRoundedFrame(&parent);
        QCOMPARE(frame->parentWidget(), &parent);
        QVERIFY(!frame->isWindow());
    }
    QVERIFY(!frame);
}

void tst_CRoundedFrame::declaresItsProperties_data()
{
    QTest::addColumn<QByteArray>("typeName");
    QTest::newRow("radius") << QByteArray("int");
    QTest::newRow("lineWidth") << QByteArray("int");
    QTest::newRow("frameShadow") << QByteArray("QFrame::Shadow");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTest::newRow("frameShape") << QByteArray("Shape");
#else // Qt 6 completes the names of types
    QTest::newRow("frameShape") << QByteArray("ui::CRoundedFrame::Shape");
#endif
}

void tst_CRoundedFrame::declaresItsProperties()
{
    QFETCH(QByteArray, typeName);
    const QMetaObject& meta = CRoundedFrame::staticMetaObject;
    QCOMPARE(meta.className(), "ui::CRoundedFrame");
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 4);
    QCOMPARE(meta.methodCount(), meta.methodOffset());

    const QMetaProperty property = meta.property(meta.indexOfProperty(QTest::currentDataTag()));
    QCOMPARE(QByteArray(property.typeName()), typeName);
    QVERIFY(property.isReadable() && property.isWritable() && property.isDesignable()
            && property.isScriptable() && property.isStored());
    QVERIFY(!property.hasNotifySignal());
    QCOMPARE(property.isEnumType(), typeName != "int");
}

void tst_CRoundedFrame::setsPropertiesByName()
{
    CRoundedFrame frame;
    QVERIFY(frame.setProperty("radius", 10));
    QVERIFY(frame.setProperty("lineWidth", 4));
    QVERIFY(frame.setProperty("frameShadow", QVariant::fromValue(QFrame::Sunken)));
    QVERIFY(frame.setProperty("frameShape", QVariant::fromValue(CRoundedFrame::NoFrame)));
    QCOMPARE(frame.radius(), 10);
    QCOMPARE(frame.lineWidth(), 4);
    QCOMPARE(frame.frameShadow(), QFrame::Sunken);
    QCOMPARE(frame.frameShape(), CRoundedFrame::NoFrame);
    QCOMPARE(frame.property("radius").toInt(), 10);
    QCOMPARE(frame.property("lineWidth").toInt(), 4);
    QCOMPARE(frame.property("frameShadow").toInt(), 0x30);
    QCOMPARE(frame.property("frameShape").toInt(), 0);
    QVERIFY(frame.setProperty("frameShape", 7)); // is not checked by Qt
    QCOMPARE(frame.property("frameShape").toInt(), 7);
}

void tst_CRoundedFrame::takesPropertiesFromStyleSheet()
{
    CRoundedFrame frame;
    frame.setStyleSheet(
        QStringLiteral("ui--CRoundedFrame { qproperty-radius: 7;"
                       " qproperty-frameShadow: Raised; qproperty-frameShape: NoFrame; }"));
    frame.ensurePolished();
    QCOMPARE(frame.radius(), 7);
    QCOMPARE(frame.frameShadow(), QFrame::Raised);
    QCOMPARE(frame.frameShape(), CRoundedFrame::NoFrame);
}

void tst_CRoundedFrame::computesMargins_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<int>("margin");
    // A corner takes 0.2929 radii, the line one and a half of its widths, halved with truncation.
    QTest::newRow("square corners") << 0 << 2 << 3;
    QTest::newRow("no line") << 18 << 0 << 5;
    QTest::newRow("nothing") << 0 << 0 << 0;
    QTest::newRow("corner rounded down") << 1 << 0 << 0;
    QTest::newRow("corner rounded up") << 2 << 0 << 1;
    QTest::newRow("odd line") << 18 << 3 << 9;
    QTest::newRow("thin line") << 18 << 1 << 6;
    QTest::newRow("wide line") << 100 << 7 << 39;
    QTest::newRow("negative line") << 18 << -3 << 1;
    QTest::newRow("negative radius") << -18 << 2 << -2;
}

void tst_CRoundedFrame::computesMargins()
{
    QFETCH(int, radius);
    QFETCH(int, lineWidth);
    QFETCH(int, margin);
    CRoundedFrame frame;
    frame.setRadius(radius);
    frame.setLineWidth(lineWidth);
    QCOMPARE(frame.contentsMargins(), evenMargins(margin));

    frame.setFrameShape(CRoundedFrame::NoFrame);
    frame.fullUpdate();
    QCOMPARE(frame.contentsMargins(), evenMargins(margin - lineWidth - lineWidth / 2));
}

void tst_CRoundedFrame::keepsMarginsOnShapeChange()
{
    CRoundedFrame frame;
    frame.setFrameShape(CRoundedFrame::NoFrame);
    QCOMPARE(frame.contentsMargins(), evenMargins(8));
    frame.setRadius(17);
    QCOMPARE(frame.contentsMargins(), evenMargins(5));
    frame.setFrameShape(CRoundedFrame::Box);
    QCOMPARE(frame.contentsMargins(), evenMargins(5));
    frame.setLineWidth(4);
    QCOMPARE(frame.contentsMargins(), evenMargins(11));
}

void tst_CRoundedFrame::updatesMarginsOnRequest()
{
    CRoundedFrame frame;
    frame.setContentsMargins(1, 2, 3, 4);
    frame.updateMargins();
    QCOMPARE(frame.contentsMargins(), evenMargins(8));
    frame.setFrameShape(CRoundedFrame::NoFrame);
    frame.updateMargins();
    QCOMPARE(frame.contentsMargins(), evenMargins(5));
}

void tst_CRoundedFrame::refreshesNarrowly_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("asksForGeometry");
    const auto row = [](const char* name, const Change& change, bool asksForGeometry) {
        QTest::newRow(name) << change << asksForGeometry;
    };
    row(
        "radius", [](CRoundedFrame& frame) { frame.setRadius(40); }, true);
    row(
        "radius, margin the same", [](CRoundedFrame& frame) { frame.setRadius(17); }, true);
    row(
        "lineWidth", [](CRoundedFrame& frame) { frame.setLineWidth(5); }, true);
    row(
        "fullUpdate", [](CRoundedFrame& frame) { frame.fullUpdate(); }, true);
    row(
        "frameShadow", [](CRoundedFrame& frame) { frame.setFrameShadow(QFrame::Raised); }, false);
    row(
        "frameShape", [](CRoundedFrame& frame) { frame.setFrameShape(CRoundedFrame::NoFrame); },
        false);
    row(
        "fill", [](CRoundedFrame& frame) { frame.enableFillContents(true); }, false);
    row(
        "mask", [](CRoundedFrame& frame) { frame.enableWidgetMask(true); }, true);
}

void tst_CRoundedFrame::refreshesNarrowly()
{
    QFETCH(Change, change);
    QFETCH(bool, asksForGeometry);
    Fixture fixture;
    QVERIFY(fixture.waitUntilIdle());

    change(*fixture.frame);
    const QVector<QRegion> repaints = fixture.repaints.takeRegions();
    QVERIFY(!repaints.isEmpty());
    QCOMPARE(repaints.first(), QRegion(fixture.frame->rect()));
    QCOMPARE(fixture.layoutRequests.take() > 0, asksForGeometry);
}

void tst_CRoundedFrame::ignoresUnchangedValues_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("radius", [](CRoundedFrame& frame) { frame.setRadius(18); });
    row("lineWidth", [](CRoundedFrame& frame) { frame.setLineWidth(2); });
    row("frameShadow", [](CRoundedFrame& frame) { frame.setFrameShadow(QFrame::Plain); });
    row("frameShape", [](CRoundedFrame& frame) { frame.setFrameShape(CRoundedFrame::Box); });
    row("fill", [](CRoundedFrame& frame) { frame.enableFillContents(false); });
    row("mask", [](CRoundedFrame& frame) { frame.enableWidgetMask(true); });
}

void tst_CRoundedFrame::ignoresUnchangedValues()
{
    QFETCH(Change, change);
    Fixture fixture;
    fixture.frame->enableWidgetMask(true);
    QVERIFY(fixture.waitUntilIdle());
    const QRegion foreignMask(fixture.frame->rect().adjusted(0, 0, -1, -1));
    fixture.frame->setMask(foreignMask);
    fixture.repaints.takeRegions();

    change(*fixture.frame);
    QVERIFY(fixture.repaints.takeRegions().isEmpty());
    QCOMPARE(fixture.layoutRequests.take(), 0);
    fixture.frame->repaint();
    QCOMPARE(fixture.frame->mask(), foreignMask); // has not been computed again
}

void tst_CRoundedFrame::survivesAbsurdMetrics_data()
{
    using Limits = std::numeric_limits<int>;
    QTest::addColumn<int>("radius");
    QTest::addColumn<int>("lineWidth");
    const int values[] = {Limits::min(),     Limits::min() + 1, -100000,      -1, 0, 1, 40, 100000,
                          Limits::max() / 2, Limits::max() - 1, Limits::max()};
    for (int radius : values) {
        for (int lineWidth : values)
            QTest::addRow("radius %d, line %d", radius, lineWidth) << radius << lineWidth;
    }
}

void tst_CRoundedFrame::survivesAbsurdMetrics()
{
    QFETCH(int, radius);
    QFETCH(int, lineWidth);
    CRoundedFrame frame;
    frame.enableFillContents(true);
    frame.enableWidgetMask(true);
    frame.setFrameShadow(QFrame::Raised);
    frame.setRadius(radius);
    frame.setLineWidth(lineWidth);
    const qint64 margin =
        qint64(test::roundedHalfUp(radius * 0.29289321881345254)) + lineWidth + lineWidth / 2;
    QCOMPARE(frame.contentsMargins(), evenMargins(clampedToInt(margin)));

    for (const QSize& size : {QSize(1, 1), QSize(300, 3), QSize(60, 40)}) {
        frame.resize(size);
        frame.setContentsMargins(1, 1, 1, 1); // so that the outline and the mask are reached, too
        test::paintedBy(frame);
        frame.fullUpdate();
        test::paintedBy(frame);
    }
}

void tst_CRoundedFrame::survivesAbsurdMetricsInLayout()
{
    Fixture fixture;
    auto* layout = new QVBoxLayout(fixture.frame);
    layout->addWidget(new QWidget);
    fixture.frame->enableWidgetMask(true);
    QVERIFY(fixture.waitUntilIdle());
    for (int value : {100000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        fixture.frame->setRadius(value);
        fixture.frame->setLineWidth(value);
        fixture.repaints.takeRegions();
    }
    fixture.frame->setRadius(18);
    fixture.frame->setLineWidth(2);
    QCOMPARE(fixture.frame->contentsMargins(), evenMargins(8));
}

const test::Registration<tst_CRoundedFrame> registration;

#include "tst_CRoundedFrame.moc"
