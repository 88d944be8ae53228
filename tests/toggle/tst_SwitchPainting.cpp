#include "Animator.h"
#include "Painting.h"
#include "Palettes.h"
#include "Switch.h"
#include "SwitchPicture.h"
#include "SwitchTools.h"
#include "TestApplication.h"

namespace {

const QSize size(140, 44);
const QString label = QStringLiteral("Label");

QFont labelFont()
{
    QFont font = QApplication::font();
    font.setPixelSize(22);
    return font;
}

/// A switch of height 40 whose colours are all different.
void dress(Switch& control)
{
    control.setHeight(40);
    control.setFont(labelFont());
    control.setThumbOnBrush(QColor(250, 200, 150));
    control.setTrackOnBrush(QColor(0, 100, 50));
    control.setThumbOffBrush(QColor(50, 150, 250));
    control.setTrackOffBrush(QColor(200, 50, 100));
    control.setThumbOnOpacity(1.0);
    control.setTrackOnOpacity(0.8);
    control.setThumbOffOpacity(0.6);
    control.setTrackOffOpacity(0.4);
    control.setThumbDisabled(QColor(90, 80, 70, 160));
    control.setTrackDisabled(QColor(20, 40, 80, 200));
    control.setThumbDisabledOpacity(0.1);
    control.setTrackDisabledOpacity(0.5);
    control.setDisabledTextOpacity(0.3);
    control.resize(size);
}

/// The picture of that switch, off and idle.
test::SwitchPicture dressedOff()
{
    test::SwitchPicture picture;
    picture.size = size;
    picture.track = QRect(8, 10, 40, 20);
    picture.trackColor = QColor(200, 50, 100, 102);
    picture.thumbOffset = -9;
    picture.thumbColor = QColor(50, 150, 250, 153);
    picture.textArea = QRect(56, 0, 84, 44);
    picture.text = label;
    picture.font = labelFont();
    return picture;
}

/// The other ways in which the switch is expected to look, from the state off and idle.
test::SwitchPicture dressed(bool on, bool enabled, bool mirrored)
{
    test::SwitchPicture picture = dressedOff();
    if (on) {
        picture.thumbOffset = 9;
        picture.trackColor = QColor(0, 100, 50, 204);
        picture.thumbColor = QColor(250, 200, 150);
    }
    if (!enabled) {
        picture.trackColor = QColor(20, 40, 80, 200);
        picture.trackOpacity = 0.5;
        picture.thumbColor = QColor(90, 80, 70, 160);
        picture.textOpacity = 0.3;
    }
    if (mirrored) {
        picture.track.moveLeft(140 - 56 + 8);
        picture.textArea.moveLeft(0);
    }
    return picture;
}

} // namespace

class tst_SwitchPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void idle_data();
    void idle();
    void midTransition_data();
    void midTransition();
    void unconfigured_data();
    void unconfigured();
    void withoutLabel();
    void unevenMargins_data();
    void unevenMargins();
    void shadowOnlyAfterResize_data();
    void shadowOnlyAfterResize();
    void shadowIsTheSameAfterEveryResize();
    void opacityGivesTheAlpha_data();
    void opacityGivesTheAlpha();
    void disabledIgnoresTheAnimators();
    void disabledOpacityOfThumbIsUnused();
    void labelIsDrawnAsItStands_data();
    void labelIsDrawnAsItStands();
    void labelColorComesFromThePalette_data();
    void labelColorComesFromThePalette();
    void nothingShowsFocusOrPress();
};

void tst_SwitchPainting::idle_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<int>("ratio");
    for (int bits = 0; bits < 32; ++bits) {
        const bool on = bits & 1;
        const bool enabled = !(bits & 2);
        const bool mirrored = bits & 4;
        const bool dark = bits & 8;
        const int ratio = bits & 16 ? 2 : 1;
        QTest::addRow("%s, %s, %s, %s, ratio %d", on ? "on" : "off",
                      enabled ? "enabled" : "disabled",
                      mirrored ? "right to left" : "left to right", dark ? "dark" : "light", ratio)
            << on << enabled << mirrored << dark << ratio;
    }
}

void tst_SwitchPainting::idle()
{
    QFETCH(bool, on);
    QFETCH(bool, enabled);
    QFETCH(bool, mirrored);
    QFETCH(bool, dark);
    QFETCH(int, ratio);
    const QPalette palette = dark ? test::darkPalette() : test::lightPalette();
    QApplication::setPalette(palette);
    Switch control(label);
    dress(control);
    control.setChecked(on);
    control.setEnabled(enabled);
    control.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    const QColor background = palette.color(QPalette::Window);
    QVERIFY(test::sameImage(test::paintedBy(control, ratio, {}, background),
                            test::painted(dressed(on, enabled, mirrored), ratio, background)));
    QApplication::setPalette(test::lightPalette());
}

void tst_SwitchPainting::midTransition_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("offset");
    QTest::newRow("off end") << 0 << -9.0;
    QTest::newRow("half a pixel further") << 1 << -8.5;
    QTest::newRow("middle") << 18 << 0.0;
    QTest::newRow("on end") << 36 << 9.0;
    QTest::newRow("beyond the on end") << 40 << 11.0;
    QTest::newRow("before the off end") << -4 << -11.0;
}

void tst_SwitchPainting::midTransition()
{
    QFETCH(int, position);
    QFETCH(double, offset);
    Switch control(label);
    dress(control);
    const test::Animators animators = test::animatorsOf(control);
    animators.thumbPos->setCurrentValue(position);
    animators.thumbBrush->setCurrentValue(QColor(1, 120, 240, 200));
    animators.trackBrush->setCurrentValue(QColor(240, 120, 1, 50));

    test::SwitchPicture picture = dressedOff();
    picture.thumbOffset = offset;
    picture.thumbColor = QColor(1, 120, 240, 200);
    picture.trackColor = QColor(240, 120, 1, 50);
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
    QVERIFY(test::sameImage(test::paintedBy(control, 2), test::painted(picture, 2)));
}

void tst_SwitchPainting::unconfigured_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QColor>("track");
    QTest::addColumn<double>("trackOpacity");
    QTest::addColumn<double>("textOpacity");
    QTest::newRow("off") << false << true << QColor(0, 0, 0, 64) << 1.0 << 1.0;
    QTest::newRow("on") << true << true << QColor(0, 0, 0, 128) << 1.0 << 1.0;
    QTest::newRow("disabled, off") << false << false << QColor(0, 0, 0) << 0.15 << 0.4;
    QTest::newRow("disabled, on") << true << false << QColor(0, 0, 0) << 0.15 << 0.4;
}

void tst_SwitchPainting::unconfigured()
{
    QFETCH(bool, on);
    QFETCH(bool, enabled);
    QFETCH(QColor, track);
    QFETCH(double, trackOpacity);
    QFETCH(double, textOpacity);
    Switch control(label);
    control.resize(control.sizeHint());
    control.setChecked(on);
    control.setEnabled(enabled);

    test::SwitchPicture picture;
    picture.size = control.size();
    picture.track = QRect(8, 10, 36, 16);
    picture.trackColor = track;
    picture.trackOpacity = trackOpacity;
    picture.thumbOffset = on ? 9 : -9;
    picture.thumbColor = Qt::black;
    picture.textArea = QRect(52, 0, control.width() - 52, 36);
    picture.text = label;
    picture.font = QFont();
    picture.textOpacity = textOpacity;
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
}

void tst_SwitchPainting::withoutLabel()
{
    Switch control;
    dress(control);
    test::SwitchPicture picture = dressedOff();
    picture.text.clear();
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
}

void tst_SwitchPainting::unevenMargins_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("enabled") << true << false;
    QTest::newRow("disabled") << false << false;
    QTest::newRow("enabled, right to left") << true << true;
    QTest::newRow("disabled, right to left") << false << true;
}

// Margins of 3 and 10 at the sides make a travel of 15 and move the thumb by half of it. The left
// margin stays at the left in either direction.
void tst_SwitchPainting::unevenMargins()
{
    QFETCH(bool, enabled);
    QFETCH(bool, mirrored);
    Switch control(label);
    dress(control);
    control.setIndicatorMargin({3, 1, 10, 7});
    control.setChecked(true);
    control.setEnabled(enabled);
    control.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    test::SwitchPicture picture = dressed(true, enabled, mirrored);
    picture.track = QRect(QPoint(mirrored ? 140 - 53 + 3 : 3, 3), QPoint(mirrored ? 129 : 42, 30));
    picture.thumbOffset = 7.5;
    picture.textArea = QRect(mirrored ? 0 : 53, 0, 87, 44);
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
}

void tst_SwitchPainting::shadowOnlyAfterResize_data()
{
    labelColorComesFromThePalette_data();
}

void tst_SwitchPainting::shadowOnlyAfterResize()
{
    QFETCH(bool, enabled);
    Switch control;
    control.setEnabled(enabled);
    dress(control);
    control.setAttribute(Qt::WA_PendingResizeEvent, false); // render() must not deliver it
    test::SwitchPicture picture = dressed(false, enabled, false);
    picture.text.clear();
    picture.shadow = false;
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));

    QResizeEvent resized(control.size(), QSize());
    QCoreApplication::sendEvent(&control, &resized);
    picture.shadow = true;
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
}

void tst_SwitchPainting::shadowIsTheSameAfterEveryResize()
{
    Switch control(label);
    dress(control);
    const QImage before = test::paintedBy(control);
    control.resize(300, 100);
    test::paintedBy(control);
    control.resize(size);
    QVERIFY(test::sameImage(test::paintedBy(control), before));
}

void tst_SwitchPainting::opacityGivesTheAlpha_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<int>("alpha");
    QTest::newRow("opaque") << 1.0 << 255;
    QTest::newRow("half, rounded up") << 0.5 << 128;
    QTest::newRow("transparent") << 0.0 << 0;
    QTest::newRow("rounds down to 255") << 1.001 << 255;
    QTest::newRow("rounds up to 0") << -0.001 << 0;
    QTest::newRow("half below zero, rounded up") << -0.5 / 255.0 << 0;
    QTest::newRow("rounds to 256") << 1.002 << 0;
    QTest::newRow("above") << 1.5 << 0;
    QTest::newRow("below") << -0.5 << 0;
    QTest::newRow("huge") << 1e300 << 0;
    QTest::newRow("wraps an int") << 4294967296.0 / 255.0 << 0;
    QTest::newRow("not a number") << qQNaN() << 0;
    QTest::newRow("infinite") << qInf() << 0;
    QTest::newRow("negative infinite") << -qInf() << 0;
}

void tst_SwitchPainting::opacityGivesTheAlpha()
{
    QFETCH(double, opacity);
    QFETCH(int, alpha);
    Switch control;
    dress(control);
    control.setThumbOnBrush(QColor(255, 255, 255, 9)); // its own alpha does not count
    control.setThumbOnOpacity(opacity);
    control.setTrackOnOpacity(opacity);
    control.setThumbOffOpacity(opacity);
    control.setTrackOffOpacity(opacity);

    const bool refused = alpha == 0 && !(qAbs(opacity) < 0.5);
    const QColor transparent(0, 0, 0, 0);
    const test::Animators animators = test::animatorsOf(control);
    const auto thumb = [&] { return animators.thumbBrush->currentValue().value<QColor>(); };
    const auto track = [&] { return animators.trackBrush->currentValue().value<QColor>(); };
    QCOMPARE(thumb(), refused ? transparent : QColor(50, 150, 250, alpha));
    QCOMPARE(track(), refused ? transparent : QColor(200, 50, 100, alpha));
    QCOMPARE(animators.thumbBrush->startValue().value<QColor>().isValid(), !refused);

    control.setChecked(true);
    QCOMPARE(thumb(), refused ? transparent : QColor(255, 255, 255, alpha));
    QCOMPARE(track(), refused ? transparent : QColor(0, 100, 50, alpha));
    test::SwitchPicture picture = dressed(true, true, false);
    picture.text.clear();
    picture.thumbColor = QColor(255, 255, 255, alpha);
    picture.trackColor = QColor(0, 100, 50, alpha);
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
}

void tst_SwitchPainting::disabledIgnoresTheAnimators()
{
    Switch control(label);
    dress(control);
    control.setEnabled(false);
    const test::Animators animators = test::animatorsOf(control);
    animators.thumbPos->setCurrentValue(25);
    animators.thumbBrush->setCurrentValue(QColor(Qt::red));
    animators.trackBrush->setCurrentValue(QColor(Qt::red));
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(dressed(false, false, false))));
}

void tst_SwitchPainting::disabledOpacityOfThumbIsUnused()
{
    Switch control(label);
    dress(control);
    control.setEnabled(false);
    const QImage before = test::paintedBy(control);
    control.setThumbDisabledOpacity(0.9);
    QVERIFY(test::sameImage(test::paintedBy(control), before));
}

void tst_SwitchPainting::labelIsDrawnAsItStands_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("mnemonic") << QStringLiteral("&A && B");
    QTest::newRow("two lines") << QStringLiteral("A\nB");
    QTest::newRow("too long") << QStringLiteral("A long label that leaves its area");
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05d1");
}

void tst_SwitchPainting::labelIsDrawnAsItStands()
{
    QFETCH(QString, text);
    Switch control(text);
    dress(control);
    for (const bool mirrored : {false, true}) {
        control.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        test::SwitchPicture picture = dressed(false, true, mirrored);
        picture.text = text;
        QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
    }
}

void tst_SwitchPainting::labelColorComesFromThePalette_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("enabled") << true;
    QTest::newRow("disabled") << false;
}

void tst_SwitchPainting::labelColorComesFromThePalette()
{
    QFETCH(bool, enabled);
    const QPalette palette = test::telltalePalette();
    Switch control(label);
    dress(control);
    control.setPalette(palette);
    control.setTextColor(Qt::red);
    control.setEnabled(enabled);
    test::SwitchPicture picture = dressed(false, enabled, false);
    picture.textColor =
        palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(picture)));
}

void tst_SwitchPainting::nothingShowsFocusOrPress()
{
    Switch control(label);
    dress(control);
    control.show();
    QVERIFY(QTest::qWaitForWindowActive(&control));
    control.setFocus();
    QTRY_VERIFY(control.hasFocus());
    QTest::mousePress(&control, Qt::LeftButton);
    QVERIFY(control.isDown());
    QVERIFY(test::sameImage(test::paintedBy(control), test::painted(dressedOff())));
}

const test::Registration<tst_SwitchPainting> registration;

#include "tst_SwitchPainting.moc"
