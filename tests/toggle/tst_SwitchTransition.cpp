#include "Animator.h"
#include "Painting.h"
#include "Switch.h"
#include "SwitchPicture.h"
#include "SwitchTools.h"
#include "TestApplication.h"
#include "UpdateCounter.h"

#include <memory>

namespace {

const QColor thumbOn(250, 200, 150, 255);
const QColor trackOn(0, 100, 50, 204);
const QColor thumbOff(50, 150, 250, 153);
const QColor trackOff(200, 50, 100, 102);

} // namespace

class tst_SwitchTransition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void switchingOn();
    void switchingOff();
    void anyOtherStateIsOff();
    void positionIsEased();
    void propertiesGiveTimeAndEasing();
    void animatorsStartInOrder();
    void clickStartsIt();
    void offMidwayStartsAtThePositionReached();
    void onMidwayStartsFromTheOffEnd();
    void sameStateReplaysTheTransition();
    void hiddenSwitchJumps();
    void switchInHiddenWindowJumps();
    void hiddenSwitchTellsOncePerAnimator();
    void hiddenSwitchJumpsInOrder();
    void hiddenSwitchIsFirstShownIdle();
    void marginsSetTheTravel();
    void animatedFramesRepaint();
    void refreshWhileIdleShowsTheOffColors();
    void refreshMidwayShowsTheOffColors();
    void refreshSetsTheTrackFirst();
    void brushConstructorShowsItsColorWhenOn();

private:
    Switch& control()
    {
        return *m_control;
    }
    test::Animators animators() const
    {
        return test::animatorsOf(*m_control);
    }
    void finishAnimations();

    std::unique_ptr<Switch> m_control;
};

void tst_SwitchTransition::init()
{
    m_control = std::make_unique<Switch>();
    control().setHeight(40);
    control().setThumbOnBrush(QColor(250, 200, 150));
    control().setTrackOnBrush(QColor(0, 100, 50));
    control().setThumbOffBrush(QColor(50, 150, 250));
    control().setTrackOffBrush(QColor(200, 50, 100));
    control().setThumbOnOpacity(1.0);
    control().setTrackOnOpacity(0.8);
    control().setThumbOffOpacity(0.6);
    control().setTrackOffOpacity(0.4);
    control().resize(140, 44);
    control().show();
    QVERIFY(QTest::qWaitForWindowExposed(m_control.get()));
}

void tst_SwitchTransition::cleanup()
{
    m_control.reset();
}

void tst_SwitchTransition::finishAnimations()
{
    animators().holdAt(150);
}

void tst_SwitchTransition::switchingOn()
{
    control().setChecked(true);
    for (const Animator* animator :
         {animators().thumbBrush, animators().trackBrush, animators().thumbPos})
        QCOMPARE(animator->state(), QAbstractAnimation::Running);
    QCOMPARE(animators().thumbPos->startValue(), QVariant(0));
    QCOMPARE(animators().thumbPos->endValue(), QVariant(36));
    QCOMPARE(animators().thumbBrush->startValue(), QVariant(thumbOff));
    QCOMPARE(animators().thumbBrush->endValue(), QVariant(thumbOn));
    QCOMPARE(animators().trackBrush->startValue(), QVariant(trackOff));
    QCOMPARE(animators().trackBrush->endValue(), QVariant(trackOn));
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(0));

    finishAnimations();
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(36));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOn));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOn));
    QCOMPARE(animators().thumbPos->state(), QAbstractAnimation::Stopped);

    test::SwitchPicture picture;
    picture.size = control().size();
    picture.track = QRect(8, 10, 40, 20);
    picture.trackColor = trackOn;
    picture.thumbOffset = 9;
    picture.thumbColor = thumbOn;
    QVERIFY(test::sameImage(test::paintedBy(control()), test::painted(picture)));
}

void tst_SwitchTransition::switchingOff()
{
    control().setChecked(true);
    finishAnimations();
    control().setChecked(false);
    QCOMPARE(animators().thumbPos->startValue(), QVariant(36));
    QCOMPARE(animators().thumbPos->endValue(), QVariant(0));
    QCOMPARE(animators().thumbBrush->startValue(), QVariant(thumbOn));
    QCOMPARE(animators().thumbBrush->endValue(), QVariant(thumbOff));
    QCOMPARE(animators().trackBrush->startValue(), QVariant(trackOn));
    QCOMPARE(animators().trackBrush->endValue(), QVariant(trackOff));
    finishAnimations();
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(0));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOff));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOff));
}

void tst_SwitchTransition::anyOtherStateIsOff()
{
    control().setChecked(true);
    finishAnimations();
    control().toggle(Qt::PartiallyChecked);
    QCOMPARE(animators().thumbPos->startValue(), QVariant(36));
    QCOMPARE(animators().thumbPos->endValue(), QVariant(0));
    QCOMPARE(animators().thumbBrush->endValue(), QVariant(thumbOff));

    control().hide();
    control().toggle(Qt::Checked);
    control().toggle(Qt::PartiallyChecked);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(0));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOff));
}

// A quarter of the time is an eighth of the way on an in-out parabola, and a quarter of the
// colours.
void tst_SwitchTransition::positionIsEased()
{
    control().setThumbPosAnimation({QEasingCurve::InOutQuad, 200});
    control().setThumbBrushAnimation({QEasingCurve::Linear, 200});
    control().setTrackBrushAnimation({QEasingCurve::Linear, 200});
    control().setIndicatorMargin({7, 8, 7, 8}); // a travel of 16
    control().setChecked(true);
    animators().holdAt(50);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(4));
    QCOMPARE(animators().thumbBrush->currentValue().value<QColor>(), QColor(100, 162, 225, 178));

    test::SwitchPicture picture;
    picture.size = control().size();
    picture.track = QRect(7, 10, 40, 20);
    picture.trackColor = QColor(150, 62, 87, 127);
    picture.thumbOffset = (4 - 16) / 2.0;
    picture.thumbColor = QColor(100, 162, 225, 178);
    QVERIFY(test::sameImage(test::paintedBy(control()), test::painted(picture)));
}

void tst_SwitchTransition::propertiesGiveTimeAndEasing()
{
    control().setThumbPosAnimation({QEasingCurve::Linear, 1000});
    control().setThumbBrushAnimation({QEasingCurve::Linear, 0});
    control().setChecked(true);
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOn));
    QCOMPARE(animators().thumbBrush->state(), QAbstractAnimation::Stopped);
    animators().thumbPos->pause();
    animators().thumbPos->setCurrentTime(250);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(9));
}

void tst_SwitchTransition::animatorsStartInOrder()
{
    QVector<QObject*> order;
    const QObject scope; // of the connections
    const test::Animators its = animators();
    for (Animator* animator : {its.thumbBrush, its.trackBrush, its.thumbPos}) {
        connect(animator, &Animator::stateChanged, &scope, [&order, animator](auto state) {
            if (state == QAbstractAnimation::Running)
                order << animator;
        });
    }
    const QVector<QObject*> expected{its.thumbPos, its.thumbBrush, its.trackBrush};
    control().setChecked(true);
    QCOMPARE(order, expected);
    order.clear();
    finishAnimations();
    control().setChecked(false);
    QCOMPARE(order, expected);
}

void tst_SwitchTransition::clickStartsIt()
{
    QTest::mouseClick(m_control.get(), Qt::LeftButton);
    QCOMPARE(animators().thumbPos->state(), QAbstractAnimation::Running);
    QCOMPARE(animators().thumbPos->endValue(), QVariant(36));
    finishAnimations();
    QTest::keyClick(m_control.get(), Qt::Key_Space);
    QCOMPARE(animators().thumbPos->endValue(), QVariant(0));
}

void tst_SwitchTransition::offMidwayStartsAtThePositionReached()
{
    control().setChecked(true);
    animators().runFrom(75);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(18));
    control().setChecked(false);
    QCOMPARE(animators().thumbPos->startValue(), QVariant(18));
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(18));
    QCOMPARE(animators().thumbPos->endValue(), QVariant(0));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOn));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOn));
    for (const Animator* animator :
         {animators().thumbBrush, animators().trackBrush, animators().thumbPos}) {
        QCOMPARE(animator->state(), QAbstractAnimation::Running);
        QCOMPARE(animator->currentTime(), 0);
    }
}

void tst_SwitchTransition::onMidwayStartsFromTheOffEnd()
{
    control().setChecked(true);
    finishAnimations();
    control().setChecked(false);
    animators().runFrom(75);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(18));
    control().setChecked(true);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(0));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOff));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOff));
    QCOMPARE(animators().thumbPos->currentTime(), 0);
}

void tst_SwitchTransition::sameStateReplaysTheTransition()
{
    control().setChecked(true);
    finishAnimations();
    control().setChecked(true);
    QCOMPARE(animators().thumbPos->state(), QAbstractAnimation::Running);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(0));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOff));
    finishAnimations();
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(36));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOn));
}

void tst_SwitchTransition::hiddenSwitchJumps()
{
    control().hide();
    control().setChecked(true);
    for (const Animator* animator :
         {animators().thumbBrush, animators().trackBrush, animators().thumbPos})
        QCOMPARE(animator->state(), QAbstractAnimation::Stopped);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(36));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOn));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOn));
    control().setChecked(false);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(0));
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOff));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOff));
}

// Such a switch is not hidden itself.
void tst_SwitchTransition::switchInHiddenWindowJumps()
{
    QWidget window;
    Switch inside(&window);
    window.show();
    window.hide();
    QVERIFY(!inside.isHidden());
    inside.setChecked(true);
    QCOMPARE(test::animatorsOf(inside).thumbPos->state(), QAbstractAnimation::Stopped);
    QCOMPARE(test::animatorsOf(inside).thumbPos->currentValue(), QVariant(36));
}

void tst_SwitchTransition::hiddenSwitchTellsOncePerAnimator()
{
    control().hide();
    test::UpdateCounter updates(m_control.get());
    control().setChecked(true);
    QCOMPARE(updates.take(), 3);
    control().setChecked(false);
    QCOMPARE(updates.take(), 3);
}

void tst_SwitchTransition::hiddenSwitchJumpsInOrder()
{
    control().hide();
    QVector<QObject*> order;
    const QObject scope; // of the connections
    const test::Animators its = animators();
    for (Animator* animator : {its.thumbBrush, its.trackBrush, its.thumbPos}) {
        connect(animator, &Animator::valueChanged, &scope, [&order, animator] {
            if (!order.contains(animator))
                order << animator;
        });
    }
    const QVector<QObject*> expected{its.thumbPos, its.thumbBrush, its.trackBrush};
    control().setChecked(true);
    QCOMPARE(order, expected);
    order.clear();
    control().setChecked(false);
    QCOMPARE(order, expected);
}

void tst_SwitchTransition::hiddenSwitchIsFirstShownIdle()
{
    Switch fresh;
    fresh.setChecked(true);
    fresh.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fresh));
    const test::Animators its = test::animatorsOf(fresh);
    QCOMPARE(its.thumbPos->state(), QAbstractAnimation::Stopped);
    QCOMPARE(its.thumbPos->currentValue(), QVariant(36));
    QCOMPARE(its.trackBrush->currentValue(), QVariant(QColor(0, 0, 0, 128)));
}

void tst_SwitchTransition::marginsSetTheTravel()
{
    control().setIndicatorMargin({3, 50, 10, 60});
    control().setChecked(true);
    QCOMPARE(animators().thumbPos->endValue(), QVariant(30));
    control().hide();
    control().setChecked(true);
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(30));
}

void tst_SwitchTransition::animatedFramesRepaint()
{
    control().setChecked(true);
    animators().holdAt(30);
    QCoreApplication::processEvents();
    const QImage early = control().grab().toImage();
    animators().holdAt(120);
    QVERIFY(early != control().grab().toImage());
    test::UpdateCounter updates(m_control.get());
    animators().thumbPos->setCurrentTime(100);
    QCOMPARE(updates.take(), 1);
}

void tst_SwitchTransition::refreshWhileIdleShowsTheOffColors()
{
    control().setChecked(true);
    finishAnimations();
    control().setHeight(42);
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOff));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOff));
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(36));

    test::SwitchPicture picture;
    picture.size = control().size();
    picture.track = QRect(8, 10, 42, 22);
    picture.trackColor = trackOff;
    picture.thumbOffset = 9;
    picture.thumbColor = thumbOff;
    QVERIFY(test::sameImage(test::paintedBy(control()), test::painted(picture)));

    control().setChecked(true);
    finishAnimations();
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOn));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOn));
}

void tst_SwitchTransition::refreshMidwayShowsTheOffColors()
{
    control().setChecked(true);
    animators().holdAt(75);
    control().setThumbOnOpacity(0.9);
    QCOMPARE(animators().thumbBrush->currentValue(), QVariant(thumbOff));
    QCOMPARE(animators().trackBrush->currentValue(), QVariant(trackOff));
    QCOMPARE(animators().thumbPos->currentValue(), QVariant(18));
}

void tst_SwitchTransition::refreshSetsTheTrackFirst()
{
    control().setChecked(true);
    finishAnimations();
    QVector<QObject*> order;
    const QObject scope; // of the connections
    const test::Animators its = animators();
    for (Animator* animator : {its.thumbBrush, its.trackBrush, its.thumbPos}) {
        connect(animator, &Animator::valueChanged, &scope,
                [&order, animator] { order << animator; });
    }
    control().refresh();
    QCOMPARE(order, QVector<QObject*>({its.trackBrush, its.thumbBrush}));
}

void tst_SwitchTransition::brushConstructorShowsItsColorWhenOn()
{
    Switch colored(QStringLiteral("Label"), QColor(10, 20, 30, 40));
    const test::Animators its = test::animatorsOf(colored);
    QCOMPARE(its.thumbBrush->currentValue(), QVariant(QColor(0, 0, 0, 255)));
    colored.setChecked(true);
    QCOMPARE(its.thumbBrush->currentValue(), QVariant(QColor(10, 20, 30, 255)));
    QCOMPARE(its.trackBrush->currentValue(), QVariant(QColor(10, 20, 30, 128)));
}

const test::Registration<tst_SwitchTransition> registration;

#include "tst_SwitchTransition.moc"
