#include "Animator.h"
#include "EventCounter.h"
#include "PaintRecorder.h"
#include "Palettes.h"
#include "Switch.h"
#include "SwitchTools.h"
#include "TestApplication.h"

#include <cmath>

namespace {

const Style::Animation linear{QEasingCurve::Linear, 150};
const Style::Animation inOutQuad{QEasingCurve::InOutQuad, 150};
const Style::Animation bounce{QEasingCurve::OutBounce, 70};

QFont largeFont()
{
    QFont font;
    font.setPixelSize(31);
    return font;
}

} // namespace

class tst_Switch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void animationsCompareFieldByField();
    void metaObject();
    void properties_data();
    void properties();
    void propertyIsSetOnce_data();
    void propertyIsSetOnce();
    void doublesCompareExactly();
    void settersRefreshTheAnimators();
    void refreshLeavesThePosition();
    void indicatorMargin();
    void typedAccessors();
    void widgetKeepsItsHeightAndFont();
    void inheritedToggleSlot();
    void constructors();
    void newSwitch();
    void labelPalette();
    void textColorLeavesThePalette();
    void animators();
};

void tst_Switch::initTestCase()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // Qt 6 finds the operator by itself
    QVERIFY(QMetaType::registerEqualsComparator<Style::Animation>());
#endif
    QCOMPARE(QVariant::fromValue(inOutQuad), QVariant::fromValue(Style::Animation(inOutQuad)));
    QVERIFY(QVariant::fromValue(inOutQuad) != QVariant::fromValue(linear));
}

void tst_Switch::animationsCompareFieldByField()
{
    QVERIFY(linear == (Style::Animation{QEasingCurve::Linear, 150}));
    QVERIFY(!(linear != (Style::Animation{QEasingCurve::Linear, 150})));
    QVERIFY(linear != inOutQuad);
    QVERIFY(linear != (Style::Animation{QEasingCurve::Linear, 151}));
    QVERIFY(!(linear == (Style::Animation{QEasingCurve::Linear, 151})));
    QVERIFY(Style::Animation() == (Style::Animation{QEasingCurve::Linear, 0}));
}

void tst_Switch::metaObject()
{
    const QMetaObject& meta = Switch::staticMetaObject;
    QCOMPARE(meta.className(), "Switch");
    QCOMPARE(meta.superClass(), &SelectionControl::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());

    QByteArrayList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        names << property.typeName() + QByteArray(" ") + property.name();
        QVERIFY(property.isReadable() && property.isWritable() && property.isDesignable()
                && property.isScriptable() && property.isStored());
        QVERIFY(!property.hasNotifySignal() && !property.isConstant() && !property.isUser()
                && !property.isResettable());
    }
    const QByteArrayList expected{"int height",
                                  "QFont font",
                                  "QColor thumbOnBrush",
                                  "double thumbOnOpacity",
                                  "QColor trackOnBrush",
                                  "double trackOnOpacity",
                                  "QColor thumbOffBrush",
                                  "double thumbOffOpacity",
                                  "QColor trackOffBrush",
                                  "double trackOffOpacity",
                                  "QColor thumbDisabled",
                                  "double thumbDisabledOpacity",
                                  "QColor trackDisabled",
                                  "double trackDisabledOpacity",
                                  "QColor textColor",
                                  "double disabledTextOpacity",
                                  "Style::Animation thumbBrushAnimation",
                                  "Style::Animation trackBrushAnimation",
                                  "Style::Animation thumbPosAnimation"};
    QCOMPARE(names, expected);
}

void tst_Switch::properties_data()
{
    QTest::addColumn<QVariant>("initial");
    QTest::addColumn<QVariant>("other");
    const auto animation = [](const Style::Animation& value) { return QVariant::fromValue(value); };
    QTest::newRow("height") << QVariant(36) << QVariant(50);
    QTest::newRow("font") << QVariant(QFont()) << QVariant(largeFont());
    for (const char* color : {"thumbOnBrush", "trackOnBrush", "thumbOffBrush", "trackOffBrush",
                              "thumbDisabled", "trackDisabled", "textColor"})
        QTest::newRow(color) << QVariant(QColor()) << QVariant(QColor(1, 2, 3, 4));
    QTest::newRow("thumbOnOpacity") << QVariant(1.0) << QVariant(0.7);
    QTest::newRow("trackOnOpacity") << QVariant(0.5) << QVariant(0.7);
    QTest::newRow("thumbOffOpacity") << QVariant(1.0) << QVariant(0.7);
    QTest::newRow("trackOffOpacity") << QVariant(0.25) << QVariant(0.7);
    QTest::newRow("thumbDisabledOpacity") << QVariant(1.0) << QVariant(0.7);
    QTest::newRow("trackDisabledOpacity") << QVariant(0.15) << QVariant(0.7);
    QTest::newRow("disabledTextOpacity") << QVariant(0.4) << QVariant(0.7);
    QTest::newRow("thumbBrushAnimation") << animation(linear) << animation(bounce);
    QTest::newRow("trackBrushAnimation") << animation(linear) << animation(bounce);
    QTest::newRow("thumbPosAnimation") << animation(inOutQuad) << animation(bounce);
}

// Setting one property stores its value and leaves all the others alone.
void tst_Switch::properties()
{
    QFETCH(QVariant, initial);
    QFETCH(QVariant, other);
    const QByteArray name = QTest::currentDataTag();
    const QMetaObject& meta = Switch::staticMetaObject;
    Switch control;
    const Switch untouched;
    QCOMPARE(control.property(name), initial);
    QVERIFY(control.setProperty(name, other));
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QCOMPARE(property.read(&control),
                 property.name() == name ? other : property.read(&untouched));
    }
}

void tst_Switch::propertyIsSetOnce_data()
{
    properties_data();
}

void tst_Switch::propertyIsSetOnce()
{
    QFETCH(QVariant, initial);
    QFETCH(QVariant, other);
    const char* name = QTest::currentDataTag();
    QWidget window;
    Switch control(QStringLiteral("Label"), &window);
    control.resize(120, 60);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    test::PaintRecorder recorder(&control);
    test::EventCounter layouts(&window, QEvent::LayoutRequest);
    layouts.take();
    recorder.takeRegions();

    control.setProperty(name, initial);
    QVERIFY2(recorder.takeRegions().isEmpty(), "the same value must not repaint");
    control.setProperty(name, other);
    QCOMPARE(recorder.takeRegions(), QVector<QRegion>{control.rect()});
    control.setProperty(name, other);
    QVERIFY2(recorder.takeRegions().isEmpty(), "the same value must not repaint");
    QCOMPARE(layouts.take(), 0);
}

void tst_Switch::doublesCompareExactly()
{
    Switch control;
    const double nearly = std::nextafter(1.0, 0.0);
    control.setThumbOnOpacity(nearly);
    QVERIFY(control.thumbOnOpacity() == nearly);
    control.setDisabledTextOpacity(0.0);
    control.setDisabledTextOpacity(1e-300);
    QVERIFY(control.disabledTextOpacity() > 0.0);
}

void tst_Switch::settersRefreshTheAnimators()
{
    Switch control;
    const test::Animators animators = test::animatorsOf(control);
    control.setThumbBrushAnimation({QEasingCurve::InQuad, 10});
    control.setTrackBrushAnimation({QEasingCurve::OutQuad, 20});
    control.setThumbPosAnimation({QEasingCurve::InSine, 30});
    QCOMPARE(animators.thumbBrush->duration(), 10);
    QCOMPARE(animators.thumbBrush->easingCurve().type(), QEasingCurve::InQuad);
    QCOMPARE(animators.trackBrush->duration(), 20);
    QCOMPARE(animators.trackBrush->easingCurve().type(), QEasingCurve::OutQuad);
    QCOMPARE(animators.thumbPos->duration(), 30);
    QCOMPARE(animators.thumbPos->easingCurve().type(), QEasingCurve::InSine);

    control.setThumbOffBrush(QColor(10, 20, 30, 40));
    control.setThumbOffOpacity(0.5);
    control.setTrackOffBrush(QColor(50, 60, 70, 80));
    control.setTrackOffOpacity(0.2);
    for (const QVariant& value :
         {animators.thumbBrush->startValue(), animators.thumbBrush->endValue(),
          animators.thumbBrush->currentValue()})
        QCOMPARE(value, QVariant(QColor(10, 20, 30, 128)));
    for (const QVariant& value :
         {animators.trackBrush->startValue(), animators.trackBrush->endValue(),
          animators.trackBrush->currentValue()})
        QCOMPARE(value, QVariant(QColor(50, 60, 70, 51)));
}

void tst_Switch::refreshLeavesThePosition()
{
    Switch control;
    const test::Animators animators = test::animatorsOf(control);
    QVERIFY(!animators.thumbPos->startValue().isValid());
    control.setChecked(true);
    control.refresh();
    QCOMPARE(animators.thumbPos->currentValue(), QVariant(36));
    QCOMPARE(animators.thumbPos->startValue(), QVariant(36));
}

void tst_Switch::indicatorMargin()
{
    Switch control;
    control.resize(120, 60);
    control.show();
    QVERIFY(QTest::qWaitForWindowExposed(&control));
    test::PaintRecorder recorder(&control);
    recorder.takeRegions();
    control.setIndicatorMargin({8, 8, 8, 8});
    QVERIFY(recorder.takeRegions().isEmpty());
    control.setIndicatorMargin({8, 8, 9, 8});
    QCOMPARE(recorder.takeRegions().size(), 1);
    QCOMPARE(control.indicatorRect(), QRect(0, 0, 53, 36));
}

void tst_Switch::typedAccessors()
{
    Switch control;
    control.setHeight(20);
    control.setFont(largeFont());
    control.setThumbOnBrush(Qt::red);
    control.setThumbOnOpacity(0.1);
    control.setTrackOnBrush(Qt::green);
    control.setTrackOnOpacity(0.2);
    control.setThumbOffBrush(Qt::blue);
    control.setThumbOffOpacity(0.3);
    control.setTrackOffBrush(Qt::cyan);
    control.setTrackOffOpacity(0.35);
    control.setThumbDisabled(Qt::magenta);
    control.setThumbDisabledOpacity(0.45);
    control.setTrackDisabled(Qt::yellow);
    control.setTrackDisabledOpacity(0.6);
    control.setTextColor(Qt::gray);
    control.setDisabledTextOpacity(0.8);
    control.setThumbBrushAnimation(bounce);
    control.setTrackBrushAnimation(inOutQuad);
    control.setThumbPosAnimation(linear);
    QCOMPARE(control.indicatorHeight(), 20);
    QCOMPARE(control.labelFont(), largeFont());
    QCOMPARE(control.thumbOnBrush(), QColor(Qt::red));
    QCOMPARE(control.thumbOnOpacity(), 0.1);
    QCOMPARE(control.trackOnBrush(), QColor(Qt::green));
    QCOMPARE(control.trackOnOpacity(), 0.2);
    QCOMPARE(control.thumbOffBrush(), QColor(Qt::blue));
    QCOMPARE(control.thumbOffOpacity(), 0.3);
    QCOMPARE(control.trackOffBrush(), QColor(Qt::cyan));
    QCOMPARE(control.trackOffOpacity(), 0.35);
    QCOMPARE(control.thumbDisabled(), QColor(Qt::magenta));
    QCOMPARE(control.thumbDisabledOpacity(), 0.45);
    QCOMPARE(control.trackDisabled(), QColor(Qt::yellow));
    QCOMPARE(control.trackDisabledOpacity(), 0.6);
    QCOMPARE(control.textColor(), QColor(Qt::gray));
    QCOMPARE(control.disabledTextOpacity(), 0.8);
    QVERIFY(control.thumbBrushAnimation() == bounce);
    QVERIFY(control.trackBrushAnimation() == inOutQuad);
    QVERIFY(control.thumbPosAnimation() == linear);
}

void tst_Switch::widgetKeepsItsHeightAndFont()
{
    Switch control;
    const QFont widgetFont = control.font();
    control.resize(100, 70);
    control.setHeight(20);
    control.setFont(largeFont());
    QCOMPARE(control.height(), 70);
    QCOMPARE(control.property("height").toInt(), 20);
    QCOMPARE(control.font(), widgetFont);
    control.QWidget::setFont(QFont(QStringLiteral("DejaVu Sans"), 40));
    QCOMPARE(control.labelFont(), largeFont());
}

void tst_Switch::inheritedToggleSlot()
{
    Switch control;
    control.toggle();
    QCOMPARE(control.checkState(), Qt::Checked);
    QTimer::singleShot(0, &control, qOverload<>(&Switch::toggle));
    QTRY_COMPARE(control.checkState(), Qt::Unchecked);
    QVERIFY(QMetaObject::invokeMethod(&control, "toggle"));
    QCOMPARE(control.checkState(), Qt::Checked);
}

void tst_Switch::constructors()
{
    QWidget parent;
    QCOMPARE((new Switch(&parent))->parent(), &parent);
    const Switch* labelled = new Switch(QStringLiteral("Label"), &parent);
    QCOMPARE(labelled->parent(), &parent);
    QCOMPARE(labelled->text(), QStringLiteral("Label"));
    QVERIFY(!labelled->thumbOnBrush().isValid());

    const Switch* colored =
        new Switch(QStringLiteral("Label"), QBrush(Qt::red, Qt::Dense4Pattern), &parent);
    QCOMPARE(colored->parent(), &parent);
    QCOMPARE(colored->text(), QStringLiteral("Label"));
    QCOMPARE(colored->thumbOnBrush(), QColor(Qt::red));
    QCOMPARE(colored->trackOnBrush(), QColor(Qt::red));
    QVERIFY(!colored->thumbOffBrush().isValid());
    QVERIFY(!colored->trackOffBrush().isValid());

    QCOMPARE(Switch().parent(), nullptr);
    QCOMPARE(Switch(QStringLiteral("Label")).parent(), nullptr);
    QCOMPARE(Switch(QStringLiteral("Label"), Qt::red).parent(), nullptr);
}

void tst_Switch::newSwitch()
{
    const Switch control;
    QCOMPARE(control.objectName(), QStringLiteral("Switch"));
    QCOMPARE(control.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    QVERIFY(control.isCheckable());
    QCOMPARE(control.checkState(), Qt::Unchecked);
    QCOMPARE(control.sizeHint(), QSize(52, 36));
}

void tst_Switch::labelPalette()
{
    QApplication::setPalette(test::telltalePalette());
    const Switch control;
    const QPalette palette = control.palette();
    const QBrush black(QColor(), Qt::SolidPattern);
    QCOMPARE(palette.brush(QPalette::Active, QPalette::ButtonText), black);
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::ButtonText), black);
    QCOMPARE(palette.brush(QPalette::Inactive, QPalette::ButtonText),
             test::telltalePalette().brush(QPalette::Inactive, QPalette::ButtonText));
    QCOMPARE(palette.brush(QPalette::Active, QPalette::WindowText),
             test::telltalePalette().brush(QPalette::Active, QPalette::WindowText));
    QApplication::setPalette(test::lightPalette());
}

void tst_Switch::textColorLeavesThePalette()
{
    Switch control;
    const QPalette before = control.palette();
    control.setTextColor(Qt::red);
    QCOMPARE(control.palette(), before);
}

void tst_Switch::animators()
{
    Switch control;
    const test::Animators animators = test::animatorsOf(control);
    for (const Animator* animator :
         {animators.thumbBrush, animators.trackBrush, animators.thumbPos}) {
        QCOMPARE(animator->targetObject(), &control);
        QCOMPARE(animator->parent(), &control);
        QCOMPARE(animator->state(), QAbstractAnimation::Stopped);
        QCOMPARE(animator->duration(), 150);
    }
    QCOMPARE(animators.thumbPos->easingCurve().type(), QEasingCurve::InOutQuad);
    QCOMPARE(animators.thumbBrush->easingCurve().type(), QEasingCurve::Linear);
    QCOMPARE(animators.trackBrush->easingCurve().type(), QEasingCurve::Linear);
    QCOMPARE(animators.thumbBrush->currentValue(), QVariant(QColor(0, 0, 0, 255)));
    QCOMPARE(animators.trackBrush->currentValue(), QVariant(QColor(0, 0, 0, 64)));
    QCOMPARE(animators.thumbPos->currentValue(), QVariant());
}

const test::Registration<tst_Switch> registration;

#include "tst_Switch.moc"
