#include "EventCounter.h"
#include "Painting.h"
#include "PaintRecorder.h"
#include "TestApplication.h"

#include <ui/CRoundedFrame.h>

#include <QLabel>
#include <QMouseEvent>
#include <QPainterPath>
#include <QVBoxLayout>
#include <QWindow>

using ui::CRoundedFrame;

namespace {

constexpr QSize frameSize(120, 80);

QRegion roundedRegion(const QSize& size, int radius)
{
    QPainterPath path;
    path.addRoundedRect(QRect(QPoint(), size), radius, radius);
    return QRegion(path.toFillPolygon().toPolygon());
}

/// Counts the presses that reach it.
class Pad : public QWidget
{
public:
    using QWidget::QWidget;
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        ++presses;
    }
};

class PressableFrame : public CRoundedFrame
{
public:
    using CRoundedFrame::CRoundedFrame;
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        ++presses;
    }
};

/// A frame that lies on a pad.
struct Fixture
{
    Fixture()
    {
        window.resize(300, 200);
        pad.setGeometry(window.rect());
        frame.setGeometry(QRect(QPoint(40, 30), frameSize));
    }

    bool show()
    {
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowExposed(&window);
    }

    /// Shows the frame with its mask.
    bool showMasked()
    {
        frame.enableWidgetMask(true);
        return show() && QTest::qWaitFor([this] { return !frame.mask().isEmpty(); });
    }

    /// Presses at a point of the frame the way the window system does, through the window.
    void press(const QPoint& point)
    {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, frame.mapTo(&window, point));
    }

    QWidget window;
    Pad pad{&window};
    PressableFrame frame{&window};
};

} // namespace

class tst_CRoundedFrameMask : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void masksVisibleFrameAtOnce();
    void masksHiddenFrameAtFirstPaint();
    void masksAtDoubleResolution();
    void clearsMaskAtOnce();
    void onlyMaskingAsksForALayout();
    void masksAgainAtOnce();
    void followsSize();
    void followsRadius_data();
    void followsRadius();
    void ignoresLineWidthAndShape();
    void keepsMaskOnShapeChange();
    void interiorPaintLeavesMask();
    void letsPressesThroughCorners();
    void takesPressesEverywhereWithoutMask();
    void clipsChildren();
};

void tst_CRoundedFrameMask::masksVisibleFrameAtOnce()
{
    Fixture fixture;
    QVERIFY(fixture.show());
    QVERIFY(fixture.frame.mask().isEmpty());
    fixture.frame.enableWidgetMask(true);
    QCOMPARE(fixture.frame.mask(), roundedRegion(frameSize, 18));
    QVERIFY(!fixture.frame.mask().contains(QPoint(0, 0)));
    QVERIFY(!fixture.frame.mask().contains(QPoint(119, 79)));
    QVERIFY(fixture.frame.mask().contains(QPoint(60, 0)));
    QVERIFY(fixture.frame.mask().contains(QPoint(119, 40)));
}

void tst_CRoundedFrameMask::masksHiddenFrameAtFirstPaint()
{
    Fixture fixture;
    fixture.frame.enableWidgetMask(true);
    QVERIFY(fixture.frame.mask().isEmpty());
    QVERIFY(fixture.show());
    QTRY_COMPARE(fixture.frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::masksAtDoubleResolution()
{
    CRoundedFrame frame;
    frame.resize(frameSize);
    frame.enableWidgetMask(true);
    test::paintedBy(frame, 2.0);
    QCOMPARE(frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::clearsMaskAtOnce()
{
    Fixture fixture;
    QVERIFY(fixture.showMasked());
    fixture.frame.enableWidgetMask(false);
    QVERIFY(fixture.frame.mask().isEmpty());
    fixture.frame.setRadius(30);
    fixture.frame.repaint();
    QVERIFY(fixture.frame.mask().isEmpty());
}

void tst_CRoundedFrameMask::onlyMaskingAsksForALayout()
{
    Fixture fixture;
    auto* layout = new QVBoxLayout(&fixture.pad);
    layout->addWidget(&fixture.frame);
    QVERIFY(fixture.showMasked());
    test::EventCounter layoutRequests(&fixture.pad, QEvent::LayoutRequest);
    layoutRequests.take();
    fixture.frame.enableWidgetMask(false);
    QCOMPARE(layoutRequests.take(), 0);
    fixture.frame.enableWidgetMask(true);
    QCOMPARE(layoutRequests.take(), 1);
}

void tst_CRoundedFrameMask::masksAgainAtOnce()
{
    Fixture fixture;
    QVERIFY(fixture.showMasked());
    fixture.frame.enableWidgetMask(false);
    fixture.frame.enableWidgetMask(true);
    QCOMPARE(fixture.frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::followsSize()
{
    Fixture fixture;
    fixture.frame.enableWidgetMask(true);
    QVERIFY(fixture.show());
    for (const QSize& size : {QSize(200, 150), QSize(40, 50), QSize(160, 44)}) {
        fixture.frame.resize(size);
        QTRY_COMPARE(fixture.frame.mask(), roundedRegion(size, 18));
    }
}

void tst_CRoundedFrameMask::followsRadius_data()
{
    QTest::addColumn<int>("radius");
    QTest::newRow("larger") << 30;
    QTest::newRow("half the height and more") << 60;
    QTest::newRow("same margin") << 17;
    QTest::newRow("square") << 0;
    QTest::newRow("negative") << -5;
}

void tst_CRoundedFrameMask::followsRadius()
{
    QFETCH(int, radius);
    Fixture fixture;
    fixture.frame.setLineWidth(8); // leaves margins whatever the radius
    fixture.frame.enableWidgetMask(true);
    QVERIFY(fixture.show());
    QTRY_COMPARE(fixture.frame.mask(), roundedRegion(frameSize, 18));
    fixture.frame.setRadius(radius);
    QCOMPARE(fixture.frame.mask(), roundedRegion(frameSize, 18)); // until the next paint
    QTRY_COMPARE(fixture.frame.mask(), roundedRegion(frameSize, radius));
}

void tst_CRoundedFrameMask::ignoresLineWidthAndShape()
{
    Fixture fixture;
    fixture.frame.setLineWidth(9);
    fixture.frame.setFrameShape(CRoundedFrame::NoFrame);
    fixture.frame.enableWidgetMask(true);
    QVERIFY(fixture.show());
    QTRY_COMPARE(fixture.frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::keepsMaskOnShapeChange()
{
    Fixture fixture;
    QVERIFY(fixture.showMasked());
    const QRegion foreignMask(QRect(QPoint(), frameSize).adjusted(0, 0, -1, -1));
    fixture.frame.setMask(foreignMask);
    fixture.frame.setFrameShape(CRoundedFrame::NoFrame);
    fixture.frame.setFrameShadow(QFrame::Raised);
    fixture.frame.enableFillContents(true);
    fixture.frame.repaint();
    QCOMPARE(fixture.frame.mask(), foreignMask);
    fixture.frame.fullUpdate();
    fixture.frame.repaint();
    QCOMPARE(fixture.frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::interiorPaintLeavesMask()
{
    CRoundedFrame frame;
    frame.resize(frameSize);
    frame.enableWidgetMask(true);
    test::paintedBy(frame, 1.0, frame.contentsRect());
    QVERIFY(frame.mask().isEmpty());
    test::paintedBy(frame, 1.0, frame.contentsRect().adjusted(0, 0, 1, 0));
    QCOMPARE(frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::letsPressesThroughCorners()
{
    Fixture fixture;
    QVERIFY(fixture.showMasked());
    const QRect area(QPoint(), frameSize);
    for (const QPoint& corner :
         {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()})
        fixture.press(corner);
    QCOMPARE(fixture.pad.presses, 4);
    QCOMPARE(fixture.frame.presses, 0);
    fixture.press(area.center());
    fixture.press(QPoint(60, 0));
    QCOMPARE(fixture.pad.presses, 4);
    QCOMPARE(fixture.frame.presses, 2);
}

void tst_CRoundedFrameMask::takesPressesEverywhereWithoutMask()
{
    Fixture fixture;
    QVERIFY(fixture.showMasked());
    fixture.frame.enableWidgetMask(false);
    fixture.press(QPoint(0, 0));
    QCOMPARE(fixture.frame.presses, 1);
    QCOMPARE(fixture.pad.presses, 0);
}

void tst_CRoundedFrameMask::clipsChildren()
{
    Fixture fixture;
    fixture.frame.setFrameShape(CRoundedFrame::NoFrame);
    fixture.frame.enableWidgetMask(true);
    QLabel picture(&fixture.frame);
    QPixmap red(frameSize);
    red.fill(Qt::red);
    picture.setPixmap(red);
    picture.setGeometry(QRect(QPoint(), frameSize));
    QVERIFY(fixture.show());
    QTRY_VERIFY(!fixture.frame.mask().isEmpty());
    const QImage image = fixture.window.grab(fixture.frame.geometry()).toImage();
    const QColor around = fixture.window.palette().color(QPalette::Window);
    QCOMPARE(image.pixelColor(0, 0), around);
    QCOMPARE(image.pixelColor(119, 79), around);
    QCOMPARE(image.pixelColor(60, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(60, 40), QColor(Qt::red));
}

const test::Registration<tst_CRoundedFrameMask> registration;

#include "tst_CRoundedFrameMask.moc"
