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
struct Stage
{
    Stage()
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
    Stage stage;
    QVERIFY(stage.show());
    QVERIFY(stage.frame.mask().isEmpty());
    stage.frame.enableWidgetMask(true);
    QCOMPARE(stage.frame.mask(), roundedRegion(frameSize, 18));
    QVERIFY(!stage.frame.mask().contains(QPoint(0, 0)));
    QVERIFY(!stage.frame.mask().contains(QPoint(119, 79)));
    QVERIFY(stage.frame.mask().contains(QPoint(60, 0)));
    QVERIFY(stage.frame.mask().contains(QPoint(119, 40)));
}

void tst_CRoundedFrameMask::masksHiddenFrameAtFirstPaint()
{
    Stage stage;
    stage.frame.enableWidgetMask(true);
    QVERIFY(stage.frame.mask().isEmpty());
    QVERIFY(stage.show());
    QTRY_COMPARE(stage.frame.mask(), roundedRegion(frameSize, 18));
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
    Stage stage;
    QVERIFY(stage.showMasked());
    stage.frame.enableWidgetMask(false);
    QVERIFY(stage.frame.mask().isEmpty());
    stage.frame.setRadius(30);
    stage.frame.repaint();
    QVERIFY(stage.frame.mask().isEmpty());
}

void tst_CRoundedFrameMask::onlyMaskingAsksForALayout()
{
    Stage stage;
    auto* layout = new QVBoxLayout(&stage.pad);
    layout->addWidget(&stage.frame);
    QVERIFY(stage.showMasked());
    test::EventCounter layoutRequests(&stage.pad, QEvent::LayoutRequest);
    layoutRequests.take();
    stage.frame.enableWidgetMask(false);
    QCOMPARE(layoutRequests.take(), 0);
    stage.frame.enableWidgetMask(true);
    QCOMPARE(layoutRequests.take(), 1);
}

void tst_CRoundedFrameMask::masksAgainAtOnce()
{
    Stage stage;
    QVERIFY(stage.showMasked());
    stage.frame.enableWidgetMask(false);
    stage.frame.enableWidgetMask(true);
    QCOMPARE(stage.frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::followsSize()
{
    Stage stage;
    stage.frame.enableWidgetMask(true);
    QVERIFY(stage.show());
    for (const QSize& size : {QSize(200, 150), QSize(40, 50), QSize(160, 44)}) {
        stage.frame.resize(size);
        QTRY_COMPARE(stage.frame.mask(), roundedRegion(size, 18));
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
    Stage stage;
    stage.frame.setLineWidth(8); // leaves margins whatever the radius
    stage.frame.enableWidgetMask(true);
    QVERIFY(stage.show());
    QTRY_COMPARE(stage.frame.mask(), roundedRegion(frameSize, 18));
    stage.frame.setRadius(radius);
    QCOMPARE(stage.frame.mask(), roundedRegion(frameSize, 18)); // until the next paint
    QTRY_COMPARE(stage.frame.mask(), roundedRegion(frameSize, radius));
}

void tst_CRoundedFrameMask::ignoresLineWidthAndShape()
{
    Stage stage;
    stage.frame.setLineWidth(9);
    stage.frame.setFrameShape(CRoundedFrame::NoFrame);
    stage.frame.enableWidgetMask(true);
    QVERIFY(stage.show());
    QTRY_COMPARE(stage.frame.mask(), roundedRegion(frameSize, 18));
}

void tst_CRoundedFrameMask::keepsMaskOnShapeChange()
{
    Stage stage;
    QVERIFY(stage.showMasked());
    const QRegion foreignMask(QRect(QPoint(), frameSize).adjusted(0, 0, -1, -1));
    stage.frame.setMask(foreignMask);
    stage.frame.setFrameShape(CRoundedFrame::NoFrame);
    stage.frame.setFrameShadow(QFrame::Raised);
    stage.frame.enableFillContents(true);
    stage.frame.repaint();
    QCOMPARE(stage.frame.mask(), foreignMask);
    stage.frame.fullUpdate();
    stage.frame.repaint();
    QCOMPARE(stage.frame.mask(), roundedRegion(frameSize, 18));
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
    Stage stage;
    QVERIFY(stage.showMasked());
    const QRect area(QPoint(), frameSize);
    for (const QPoint& corner :
         {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()})
        stage.press(corner);
    QCOMPARE(stage.pad.presses, 4);
    QCOMPARE(stage.frame.presses, 0);
    stage.press(area.center());
    stage.press(QPoint(60, 0));
    QCOMPARE(stage.pad.presses, 4);
    QCOMPARE(stage.frame.presses, 2);
}

void tst_CRoundedFrameMask::takesPressesEverywhereWithoutMask()
{
    Stage stage;
    QVERIFY(stage.showMasked());
    stage.frame.enableWidgetMask(false);
    stage.press(QPoint(0, 0));
    QCOMPARE(stage.frame.presses, 1);
    QCOMPARE(stage.pad.presses, 0);
}

void tst_CRoundedFrameMask::clipsChildren()
{
    Stage stage;
    stage.frame.setFrameShape(CRoundedFrame::NoFrame);
    stage.frame.enableWidgetMask(true);
    QLabel picture(&stage.frame);
    QPixmap red(frameSize);
    red.fill(Qt::red);
    picture.setPixmap(red);
    picture.setGeometry(QRect(QPoint(), frameSize));
    QVERIFY(stage.show());
    QTRY_VERIFY(!stage.frame.mask().isEmpty());
    const QImage image = stage.window.grab(stage.frame.geometry()).toImage();
    const QColor around = stage.window.palette().color(QPalette::Window);
    QCOMPARE(image.pixelColor(0, 0), around);
    QCOMPARE(image.pixelColor(119, 79), around);
    QCOMPARE(image.pixelColor(60, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(60, 40), QColor(Qt::red));
}

const test::Registration<tst_CRoundedFrameMask> registration;

#include "tst_CRoundedFrameMask.moc"
