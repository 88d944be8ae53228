#include "Animator.h"
#include "ManualDriver.h"
#include "TestApplication.h"
#include "UpdateCounter.h"

#include <QColor>

#include <memory>
#include <utility>

namespace {

const char refusedTarget[] =
    "Animation::setTargetObject: you can't change the target of a running animation";
const char noTarget[] = "Animation::updateState: Changing state of an animation without target";
const char noEndValue[] =
    "Animation::updateState (QObject): starting an animation without end value";

QByteArray lastCategory;

void keepCategory(QtMsgType, const QMessageLogContext& context, const QString&)
{
    lastCategory = context.category;
}

} // namespace

class tst_Animator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void targetProperty();
    void constructor();
    void destroyedTargetReadsAsNull();
    void targetIsRefusedWhileRunning();
    void sameTargetWhileRunningIsNoMisuse();
    void targetMayChangeWhilePaused();
    void warningsUseTheDefaultCategory();
    void setup();
    void setupByMetaObjectDefaultsToLinear();
    void setupLeavesRunningAnimationRunning();
    void negativeDurationIsRefused();
    void interpolate();
    void interpolateRestarts_data();
    void interpolateRestarts();
    void interpolateGoesOnWherePaused();
    void interpolateRestartsTheClock();
    void interpolateKeepsTheDeletionPolicy();
    void interpolateWithoutEndValueWhileRunning();
    void interpolateWithoutLoopsWhileRunning();
    void interpolateWithoutTargetWhileRunning();
    void setCurrentValueTellsOnce_data();
    void setCurrentValueTellsOnce();
    void setCurrentValueIsSeenWhole_data();
    void setCurrentValueIsSeenWhole();
    void deletedInValueChanged();
    void deletedInInterpolate_data();
    void deletedInInterpolate();
    void deletedInStateChanged();
    void setCurrentValueTakesAnything_data();
    void setCurrentValueTakesAnything();
    void everyTickTellsTheTarget();
    void startWithoutTarget();
    void startWithoutTargetAndEndValue();
    void missingEndValue();
    void missingEndValueBackwards();
    void missingEndValueAndDestroyedTarget();
    void targetDestroyedWhileRunning();
    void destructorStopsFirst();
};

void tst_Animator::metaObject()
{
    const QMetaObject& meta = Animator::staticMetaObject;
    QCOMPARE(meta.className(), "Animator");
    QCOMPARE(meta.superClass(), &QVariantAnimation::staticMetaObject);

    QByteArrayList slots_;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
        slots_ << method.methodSignature();
    }
    const QByteArrayList expected{"setup(int,QEasingCurve)", "setup(int)",
                                  "interpolate(QVariant,QVariant)", "setCurrentValue(QVariant)"};
    QCOMPARE(slots_, expected);
    QVERIFY(meta.method(meta.indexOfMethod("setup(int)")).attributes() & QMetaMethod::Cloned);
}

void tst_Animator::targetProperty()
{
    const QMetaObject& meta = Animator::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
    const QMetaProperty property = meta.property(meta.propertyOffset());
    QCOMPARE(property.name(), "targetObject");
    QCOMPARE(property.typeName(), "QObject*");
    QVERIFY(property.isReadable() && property.isWritable() && property.isDesignable()
            && property.isScriptable() && property.isStored());
    QVERIFY(!property.hasNotifySignal());

    QObject target;
    Animator animator(nullptr, nullptr);
    QVERIFY(animator.setProperty("targetObject", QVariant::fromValue(&target)));
    QCOMPARE(animator.property("targetObject").value<QObject*>(), &target);
}

void tst_Animator::constructor()
{
    QObject target;
    QObject parent;
    const auto* animator = new Animator(&target, &parent);
    QCOMPARE(animator->targetObject(), &target);
    QCOMPARE(animator->parent(), &parent);
    QCOMPARE(animator->state(), QAbstractAnimation::Stopped);
    QCOMPARE(Animator(nullptr, nullptr).targetObject(), nullptr);
}

void tst_Animator::destroyedTargetReadsAsNull()
{
    auto target = std::make_unique<QObject>();
    Animator animator(target.get(), nullptr);
    target.reset();
    QCOMPARE(animator.targetObject(), nullptr);
}

void tst_Animator::targetIsRefusedWhileRunning()
{
    QObject target;
    QObject other;
    Animator animator(&target, nullptr);
    animator.interpolate(0, 10);
    QTest::ignoreMessage(QtWarningMsg, refusedTarget);
    animator.setTargetObject(&other);
    QCOMPARE(animator.targetObject(), &target);
    QTest::ignoreMessage(QtWarningMsg, refusedTarget);
    animator.setTargetObject(nullptr);
    QCOMPARE(animator.targetObject(), &target);

    animator.stop();
    animator.setTargetObject(&other);
    QCOMPARE(animator.targetObject(), &other);
}

void tst_Animator::sameTargetWhileRunningIsNoMisuse()
{
    auto target = std::make_unique<QObject>();
    Animator animator(target.get(), nullptr);
    animator.interpolate(0, 10);
    animator.setTargetObject(target.get());
    QCOMPARE(animator.targetObject(), target.get());
    target.reset();
    animator.setTargetObject(nullptr);
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
}

void tst_Animator::targetMayChangeWhilePaused()
{
    QObject target;
    QObject other;
    Animator animator(&target, nullptr);
    animator.interpolate(0, 10);
    animator.pause();
    animator.setTargetObject(&other);
    QCOMPARE(animator.targetObject(), &other);
    test::UpdateCounter toTarget(&target);
    test::UpdateCounter toOther(&other);
    animator.setCurrentTime(100);
    QCOMPARE(toTarget.take(), 0);
    QCOMPARE(toOther.take(), 1);
}

void tst_Animator::warningsUseTheDefaultCategory()
{
    QObject target;
    Animator animator(nullptr, nullptr);
    const auto categoryOf = [](const auto& misuse) {
        lastCategory.clear();
        const QtMessageHandler former = qInstallMessageHandler(keepCategory);
        misuse();
        qInstallMessageHandler(former);
        return lastCategory;
    };
    QCOMPARE(categoryOf([&] { animator.start(); }), QByteArray("default"));
    QCOMPARE(categoryOf([&] { animator.setTargetObject(&target); }), QByteArray("default"));
    QCOMPARE(categoryOf([&] { animator.stop(); }), QByteArray("default"));
}

void tst_Animator::setup()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.setup(70, QEasingCurve::OutBounce);
    QCOMPARE(animator.duration(), 70);
    QCOMPARE(animator.easingCurve(), QEasingCurve(QEasingCurve::OutBounce));
    animator.setup(80);
    QCOMPARE(animator.duration(), 80);
    QCOMPARE(animator.easingCurve(), QEasingCurve(QEasingCurve::Linear));
}

void tst_Animator::setupByMetaObjectDefaultsToLinear()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.setEasingCurve(QEasingCurve::InQuad);
    QVERIFY(QMetaObject::invokeMethod(&animator, "setup", Q_ARG(int, 100)));
    QCOMPARE(animator.duration(), 100);
    QCOMPARE(animator.easingCurve(), QEasingCurve(QEasingCurve::Linear));
}

void tst_Animator::setupLeavesRunningAnimationRunning()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.interpolate(0, 100);
    animator.pause();
    animator.setCurrentTime(100);
    animator.resume();
    animator.setup(400);
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    QCOMPARE(animator.currentTime(), 100);
}

void tst_Animator::negativeDurationIsRefused()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.setup(90);
    QTest::ignoreMessage(QtWarningMsg,
                         "QVariantAnimation::setDuration: cannot set a negative duration");
    animator.setup(-1, QEasingCurve::InQuad);
    QCOMPARE(animator.duration(), 90);
    QCOMPARE(animator.easingCurve(), QEasingCurve(QEasingCurve::InQuad));
}

void tst_Animator::interpolate()
{
    QObject target;
    QPointer<Animator> animator = new Animator(&target, &target);
    animator->setup(100);
    QVERIFY(QMetaObject::invokeMethod(animator, "interpolate", Q_ARG(QVariant, 20),
                                      Q_ARG(QVariant, 40)));
    QCOMPARE(animator->state(), QAbstractAnimation::Running);
    QCOMPARE(animator->currentValue(), QVariant(20));
    animator->pause();
    animator->setCurrentTime(50);
    QCOMPARE(animator->currentValue(), QVariant(30));
    animator->setCurrentTime(100);
    QCOMPARE(animator->state(), QAbstractAnimation::Stopped);
    QCOMPARE(animator->currentValue(), QVariant(40));

    animator->interpolate(QColor(0, 0, 0, 0), QColor(200, 100, 50, 250));
    animator->pause();
    animator->setCurrentTime(50);
    QCOMPARE(animator->currentValue().value<QColor>(), QColor(100, 50, 25, 125));
    animator->stop();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(animator, "the animator must survive its stop");
}

void tst_Animator::interpolateRestarts_data()
{
    QTest::addColumn<QAbstractAnimation::Direction>("direction");
    QTest::addColumn<int>("loopCount");
    QTest::addColumn<int>("startTime");
    QTest::newRow("forwards") << QAbstractAnimation::Forward << 1 << 0;
    QTest::newRow("forwards, endless") << QAbstractAnimation::Forward << -1 << 0;
    QTest::newRow("backwards") << QAbstractAnimation::Backward << 1 << 100;
    QTest::newRow("backwards, twice") << QAbstractAnimation::Backward << 2 << 200;
    QTest::newRow("backwards, endless") << QAbstractAnimation::Backward << -1 << 100;
}

/// Where start() begins, and with no more to be heard than the new values.
void tst_Animator::interpolateRestarts()
{
    QFETCH(QAbstractAnimation::Direction, direction);
    QFETCH(int, loopCount);
    QFETCH(int, startTime);
    QObject target;
    Animator animator(&target, nullptr);
    animator.setup(100);
    animator.setLoopCount(loopCount);
    animator.setDirection(direction);
    animator.interpolate(0, 10);
    animator.pause();
    animator.setCurrentTime(60);
    animator.resume();

    int stateChanges = 0;
    connect(&animator, &Animator::stateChanged, &target, [&] { ++stateChanges; });
    const QSignalSpy finished(&animator, &Animator::finished);
    const QSignalSpy values(&animator, &Animator::valueChanged);
    test::UpdateCounter updates(&target);
    animator.interpolate(50, 70);
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    QCOMPARE(animator.currentLoop() * 100 + animator.currentLoopTime(), startTime);
    const bool forwards = direction == QAbstractAnimation::Forward;
    QCOMPARE(animator.currentValue(), QVariant(forwards ? 50 : 70));
    QCOMPARE(stateChanges, 0);
    QCOMPARE(finished.size(), 0);
    // From 50 on to the end that was, then to the new one, then where the animation begins.
    const QVariantList expected{26, 62, forwards ? 50 : 70};
    QCOMPARE(values.size(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(values.at(i).first().value<QVariant>(), expected.at(i));
    QCOMPARE(updates.take(), 3);
}

void tst_Animator::interpolateGoesOnWherePaused()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.setup(100);
    animator.interpolate(0, 10);
    animator.pause();
    animator.setCurrentTime(60);
    animator.interpolate(50, 70);
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    QCOMPARE(animator.currentTime(), 60);
    QCOMPARE(animator.currentValue(), QVariant(62));
}

/// The time that passed before it, in which Qt's timer may have had no chance to tick, does not
/// count.
void tst_Animator::interpolateRestartsTheClock()
{
    test::ManualDriver driver;
    QObject target;
    Animator animator(&target, nullptr);
    animator.setup(100);
    for (const int end : {10, 20, 30}) {
        animator.interpolate(0, end);
        driver.pass(40);
        QCOMPARE(animator.currentTime(), 40);
        driver.block(5000);
    }
}

void tst_Animator::interpolateKeepsTheDeletionPolicy()
{
    QObject target;
    const QPointer<Animator> animator = new Animator(&target, nullptr);
    animator->setStartValue(0);
    animator->setEndValue(10);
    animator->start(QAbstractAnimation::DeleteWhenStopped);
    animator->interpolate(0, 20);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(animator);
    animator->stop();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!animator);
}

/// Neither the end value that was missing nor the one that is: no state changes.
void tst_Animator::interpolateWithoutEndValueWhileRunning()
{
    QObject target;
    Animator animator(&target, nullptr);
    QTest::ignoreMessage(QtWarningMsg, noEndValue);
    animator.interpolate(0, QVariant());
    animator.interpolate(0, QVariant());
    animator.interpolate(0, 10);
    animator.interpolate(0, QVariant());
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    QCOMPARE(animator.currentTime(), 0);
    animator.setEndValue(1);
}

/// Qt changes the state of such an animation no more.
void tst_Animator::interpolateWithoutLoopsWhileRunning()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.setup(100);
    animator.interpolate(0, 10);
    animator.setLoopCount(0);
    animator.interpolate(20, 30);
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    QCOMPARE(animator.currentTime(), 0);
}

void tst_Animator::interpolateWithoutTargetWhileRunning()
{
    auto target = std::make_unique<QObject>();
    Animator animator(target.get(), nullptr);
    animator.interpolate(0, 10);
    target.reset();
    animator.interpolate(20, 30);
    QCOMPARE(animator.currentValue(), QVariant(20));
}

void tst_Animator::setCurrentValueTellsOnce_data()
{
    QTest::addColumn<bool>("used");
    QTest::addColumn<bool>("running");
    QTest::newRow("new animator") << false << false;
    QTest::newRow("after a transition") << true << false;
    QTest::newRow("during a transition") << true << true;
}

void tst_Animator::setCurrentValueTellsOnce()
{
    QFETCH(bool, used);
    QFETCH(bool, running);
    QObject target;
    Animator animator(&target, nullptr);
    if (used)
        animator.interpolate(0, 10);
    if (!running)
        animator.stop();

    test::UpdateCounter updates(&target);
    QVERIFY(QMetaObject::invokeMethod(&animator, "setCurrentValue", Q_ARG(QVariant, 77)));
    QCOMPARE(updates.take(), 1);
    QVERIFY(updates.allUnaccepted());
    QCOMPARE(animator.currentValue(), QVariant(77));
    QCOMPARE(animator.startValue(), QVariant(77));
    QCOMPARE(animator.endValue(), QVariant(77));
    QCOMPARE(animator.targetObject(), &target);
    QCOMPARE(animator.state(), running ? QAbstractAnimation::Running : QAbstractAnimation::Stopped);
}

void tst_Animator::setCurrentValueIsSeenWhole_data()
{
    QTest::addColumn<int>("time");
    QTest::newRow("at the start") << 0;
    QTest::newRow("half-way") << 50;
    QTest::newRow("at the end") << 100;
}

// A slot of valueChanged() sees the value that was asked for, and the target, which it may replace.
void tst_Animator::setCurrentValueIsSeenWhole()
{
    QFETCH(int, time);
    QObject target;
    QObject other;
    Animator animator(&target, nullptr);
    animator.setup(100);
    animator.interpolate(0, 10);
    animator.pause();
    animator.setCurrentTime(time);

    QVariantList values;
    QObjectList targets;
    connect(&animator, &Animator::valueChanged, &target, [&](const QVariant& value) {
        values << value;
        targets << animator.targetObject();
        animator.setTargetObject(&other);
    });
    test::UpdateCounter toTarget(&target);
    test::UpdateCounter toOther(&other);
    animator.setCurrentValue(77);
    QCOMPARE(values, QVariantList{77});
    QCOMPARE(targets, QObjectList{&target});
    QCOMPARE(animator.targetObject(), &other);
    QCOMPARE(toTarget.take(), 0);
    QCOMPARE(toOther.take(), 1);

    animator.setCurrentValue(77);
    QCOMPARE(values.size(), 1);
    QCOMPARE(toOther.take(), 1);
}

void tst_Animator::deletedInValueChanged()
{
    QObject target;
    test::UpdateCounter updates(&target);
    QPointer<Animator> animator = new Animator(&target, nullptr);
    connect(animator, &Animator::valueChanged, &target, [&animator] { delete animator; });
    animator->setCurrentValue(1);
    QVERIFY(!animator);
    QCOMPARE(updates.take(), 0);
}

void tst_Animator::deletedInInterpolate_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("start value") << 1;
    QTest::newRow("end value") << 2;
}

/// Only a slot of the value that starting itself reports is called while Qt is not finished.
void tst_Animator::deletedInInterpolate()
{
    QFETCH(int, signalNumber);
    QObject target;
    QPointer<Animator> animator = new Animator(&target, nullptr);
    animator->setup(100);
    animator->interpolate(0, 10);
    animator->setCurrentTime(50);
    int count = 0;
    connect(animator, &Animator::valueChanged, &target, [&] {
        if (++count == signalNumber)
            delete std::exchange(animator, nullptr);
    });
    animator->interpolate(40, 60);
    QVERIFY(!animator);
    QCOMPARE(count, signalNumber);
}

void tst_Animator::deletedInStateChanged()
{
    QObject target;
    QPointer<Animator> animator = new Animator(&target, nullptr);
    const auto deleteOnce = [&animator] { delete std::exchange(animator, nullptr); };
    connect(animator, &Animator::stateChanged, &target, deleteOnce);
    animator->interpolate(0, 10);
    QVERIFY(!animator);
}

void tst_Animator::setCurrentValueTakesAnything_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("invalid colour") << QVariant(QColor());
    QTest::newRow("text") << QVariant(QStringLiteral("text"));
    QTest::newRow("not a number") << QVariant(qQNaN());
}

void tst_Animator::setCurrentValueTakesAnything()
{
    QFETCH(QVariant, value);
    QObject target;
    Animator animator(&target, nullptr);
    animator.setCurrentValue(1);
    test::UpdateCounter updates(&target);
    animator.setCurrentValue(value);
    QCOMPARE(updates.take(), 1);
}

void tst_Animator::everyTickTellsTheTarget()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.setup(100);
    animator.interpolate(0, 10);
    animator.pause();
    test::UpdateCounter updates(&target);
    animator.setCurrentTime(10);
    QCOMPARE(updates.take(), 1);
    animator.stop();
    QCOMPARE(updates.take(), 0);
    animator.setCurrentTime(20);
    QCOMPARE(updates.take(), 1);
    animator.start();
    QVERIFY(updates.take() > 0);
    QTRY_COMPARE(animator.state(), QAbstractAnimation::Stopped);
    QVERIFY(updates.take() > 0);
    QVERIFY(updates.allUnaccepted());
}

void tst_Animator::startWithoutTarget()
{
    Animator animator(nullptr, nullptr);
    animator.setup(100);
    QTest::ignoreMessage(QtWarningMsg, noTarget);
    animator.interpolate(0, 10);
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    animator.setCurrentTime(50);
    QCOMPARE(animator.currentValue(), QVariant(5));
}

void tst_Animator::startWithoutTargetAndEndValue()
{
    Animator animator(nullptr, nullptr);
    QTest::ignoreMessage(QtWarningMsg, noTarget);
    animator.interpolate(0, QVariant());
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    animator.setEndValue(1);
}

void tst_Animator::missingEndValue()
{
    QObject target;
    Animator animator(&target, nullptr);
    QTest::ignoreMessage(QtWarningMsg, noEndValue);
    animator.interpolate(0, QVariant());
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
    QTest::ignoreMessage(QtWarningMsg, noEndValue);
    animator.pause();
    QTest::ignoreMessage(QtWarningMsg, noEndValue);
    animator.stop();
    QCOMPARE(animator.state(), QAbstractAnimation::Stopped);
}

void tst_Animator::missingEndValueBackwards()
{
    QObject target;
    Animator animator(&target, nullptr);
    animator.setDirection(QAbstractAnimation::Backward);
    animator.interpolate(0, QVariant());
    QCOMPARE(animator.state(), QAbstractAnimation::Running);
}

void tst_Animator::missingEndValueAndDestroyedTarget()
{
    auto target = std::make_unique<QObject>();
    Animator animator(target.get(), nullptr);
    QTest::ignoreMessage(QtWarningMsg, noEndValue);
    animator.interpolate(0, QVariant());
    target.reset();
    QTest::ignoreMessage(
        QtWarningMsg,
        "Animation::updateState (no target): starting an animation without end value");
    animator.stop();
    QCOMPARE(animator.state(), QAbstractAnimation::Stopped);
}

void tst_Animator::targetDestroyedWhileRunning()
{
    auto target = std::make_unique<QObject>();
    Animator animator(target.get(), nullptr);
    animator.setup(20);
    animator.interpolate(0, 10);
    target.reset();
    QTRY_COMPARE(animator.state(), QAbstractAnimation::Stopped);
    QCOMPARE(animator.currentValue(), QVariant(10));
}

void tst_Animator::destructorStopsFirst()
{
    QObject target;
    test::UpdateCounter updates(&target);
    auto animator = std::make_unique<Animator>(&target, nullptr);
    QTest::ignoreMessage(QtWarningMsg, noEndValue);
    animator->interpolate(0, QVariant());
    updates.take();
    // The warning shows that the class itself still saw the stop.
    QTest::ignoreMessage(QtWarningMsg, noEndValue);
    animator.reset();
    QCOMPARE(updates.take(), 0);
}

const test::Registration<tst_Animator> registration;

#include "tst_Animator.moc"
