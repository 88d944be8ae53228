#include "Painting.h"
#include "TestApplication.h"

#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/ScrollIndicatorBar.h>

#include <QFile>
#include <QIcon>

/**
 * Compares what is painted with pictures that an x86-64 processor painted: not a bit differs on
 * ARM. Without text, which follows the installed fonts. A changed look changes a picture: the
 * failing test leaves the new one in its working directory.
 */
class tst_ReferenceImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void battery_data();
    void battery();
    void button_data();
    void button();
    void frame_data();
    void frame();
    void scrollIndicator_data();
    void scrollIndicator();
    void toggle_data();
    void toggle();
    void icon_data();
    void icon();
};

namespace {

/// With Qt 6 another one where Qt itself paints otherwise: it does not enlarge a hatch with the
/// pixels, draws the outline of Fusion's button finer and rounds some colours of a gradient.
QImage referenceImage(const QString& name)
{
    const QString ofQt6 = QStringLiteral(PICTURES "/%1-qt6.png").arg(name);
    if (QT_VERSION_MAJOR == 6 && QFile::exists(ofQt6))
        return QImage(ofQt6);
    return QImage(QStringLiteral(PICTURES "/%1.png").arg(name));
}

/// Transparent and enlarged, so that every partly covered pixel shows.
bool equalsReference(QWidget& widget, const QSize& size)
{
    widget.resize(size);
    const QString name = QString::fromUtf8(QTest::currentTestFunction()) + QLatin1Char('-')
        + QString::fromUtf8(QTest::currentDataTag());
    return test::sameImage(test::paintedBy(widget, 2.0, QRegion(), Qt::transparent),
                           referenceImage(name));
}

} // namespace

void tst_ReferenceImages::battery_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<bool>("charging");
    QTest::newRow("charged") << true << false;
    QTest::newRow("charging") << true << true;
    QTest::newRow("absent") << false << false;
}

void tst_ReferenceImages::battery()
{
    QFETCH(bool, present);
    QFETCH(bool, charging);

    ui::CBatteryStatusWidget battery;
    battery.setFillColor(Qt::darkGreen);
    battery.setChargePercentage(63);
    battery.setBatteryPresent(present);
    battery.setBatteryCharging(charging);
    QVERIFY(equalsReference(battery, QSize(53, 89)));
}

void tst_ReferenceImages::button_data()
{
    QTest::addColumn<bool>("down");
    QTest::newRow("up") << false;
    QTest::newRow("down") << true;
}

void tst_ReferenceImages::button()
{
    QFETCH(bool, down);

    ui::CGridArrangedButton button;
    button.setDown(down);
    QVERIFY(equalsReference(button, QSize(91, 43)));
}

void tst_ReferenceImages::frame_data()
{
    QTest::addColumn<QFrame::Shadow>("shadow");
    QTest::newRow("plain") << QFrame::Plain;
    QTest::newRow("raised") << QFrame::Raised;
    QTest::newRow("sunken") << QFrame::Sunken;
}

void tst_ReferenceImages::frame()
{
    QFETCH(QFrame::Shadow, shadow);

    ui::CRoundedFrame frame;
    frame.setRadius(13);
    frame.setLineWidth(3);
    frame.setFrameShadow(shadow);
    frame.setAutoFillBackground(true);
    QVERIFY(equalsReference(frame, QSize(101, 57)));
}

void tst_ReferenceImages::scrollIndicator_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("horizontal") << Qt::Horizontal;
    QTest::newRow("vertical") << Qt::Vertical;
}

void tst_ReferenceImages::scrollIndicator()
{
    QFETCH(Qt::Orientation, orientation);

    ui::widgets::ScrollIndicatorBar bar(orientation);
    bar.setRange(0, 97);
    bar.setPageStep(31);
    bar.setValue(23);
    const QSize lying(111, ui::widgets::ScrollIndicatorBar::PERPENDICULAR_SIZE);
    QVERIFY(equalsReference(bar, orientation == Qt::Horizontal ? lying : lying.transposed()));
}

void tst_ReferenceImages::toggle_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("on") << true << true;
    QTest::newRow("off") << false << true;
    QTest::newRow("disabled") << true << false;
}

void tst_ReferenceImages::toggle()
{
    QFETCH(bool, checked);
    QFETCH(bool, enabled);

    Switch control;
    control.setTrackOnBrush(Qt::darkCyan);
    control.setChecked(checked);
    control.setEnabled(enabled);
    QVERIFY(equalsReference(control, QSize(97, 41)));
}

void tst_ReferenceImages::icon_data()
{
    QTest::addColumn<int>("size");
    for (const char* name : {"tile_view", "list_view"}) {
        for (int size : {16, 33, 64})
            QTest::newRow(qPrintable(QStringLiteral("%1-%2").arg(QLatin1String(name)).arg(size)))
                << size;
    }
}

void tst_ReferenceImages::icon()
{
    QFETCH(int, size);

    const QString row = QString::fromUtf8(QTest::currentDataTag());
    const QIcon icon(QStringLiteral(":/icons/%1.svg").arg(row.section(QLatin1Char('-'), 0, 0)));
    QVERIFY(test::sameImage(icon.pixmap(size).toImage(),
                            referenceImage(QStringLiteral("icon-") + row)));
}

const test::Registration<tst_ReferenceImages> registration;

#include "tst_ReferenceImages.moc"
