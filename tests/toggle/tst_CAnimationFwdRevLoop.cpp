#include "TestApplication.h"

#include <ui/CAnimationFwdRevLoop.h>

#include <QMetaMethod>
#include <QParallelAnimationGroup>
#include <QPauseAnimation>
#include <QSignalSpy>
#include <QVariantAnimation>

using ui::CAnimationFwdRevLoop;

namespace {

/// Long enough that no test sees it finish by itself.
constexpr int longDuration = 1000000;

void configure(QVariantAnimation& animation, int duration = longDuration)
{
    animation.setStartValue(0.0);
    animation.setEndValue(1.0);
    animation.setDuration(duration);
}

/// Lets the animation finish in the direction in which it runs, as time would.
void finish(QAbstractAnimation& animation)
{
    const bool forward = animation.direction() == QAbstractAnimation::Forward;
    animation.setCurrentTime(forward ? animation.totalDuration() : 0);
}

} // namespace

class tst_CAnimationFwdRevLoop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declaresOnePrivateSlot();
    void belongsToItsAnimation();
    void stopsWatchingWhenDeleted();

    void runsBackAndForth();
    void runsBackAndForthInTime();
    void turnsShortestAnimationRound();
    void startsBackwards();
    void runsAllLoopsEachWay();
    void drivesGroups();
    void joinsRunningAnimation();
    void keepsAnimationWhenStopped();

    void endsWithStop_data();
    void endsWithStop();
    void endsWithStopWithoutEnd_data();
    void endsWithStopWithoutEnd();
    void leavesEmptyAnimationFinished_data();
    void leavesEmptyAnimationFinished();
    void refusesNull();

    void survivesDeletionInFinished_data();
    void survivesDeletionInFinished();
    void survivesDeletionInDirectionChanged();
    void survivesDeletionInStateChanged();
};

void tst_CAnimationFwdRevLoop::declaresOnePrivateSlot()
{
    const QMetaObject& meta = CAnimationFwdRevLoop::staticMetaObject;
    QCOMPARE(meta.className(), "ui::CAnimationFwdRevLoop");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("reverseAndStart()"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Private);
}

void tst_CAnimationFwdRevLoop::belongsToItsAnimation()
{
    QPointer<CAnimationFwdRevLoop> loop;
    {
        QVariantAnimation animation;
        loop = new CAnimationFwdRevLoop(&animation);
        QCOMPARE(loop->parent(), &animation);
        QCOMPARE(animation.state(), QAbstractAnimation::Stopped);
    }
    QVERIFY(!loop);
}

void tst_CAnimationFwdRevLoop::stopsWatchingWhenDeleted()
{
    QVariantAnimation animation;
    configure(animation);
    delete new CAnimationFwdRevLoop(&animation);
    animation.start();
    finish(animation);
    QCOMPARE(animation.state(), QAbstractAnimation::Stopped);
    QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
}

void tst_CAnimationFwdRevLoop::runsBackAndForth()
{
    QVariantAnimation animation;
    configure(animation);
    new CAnimationFwdRevLoop(&animation);
    QSignalSpy finished(&animation, &QAbstractAnimation::finished);
    animation.start();
    for (int iteration = 1; iteration <= 3; ++iteration) {
        finish(animation);
        QCOMPARE(animation.direction(), QAbstractAnimation::Backward);
        QCOMPARE(animation.state(), QAbstractAnimation::Running);
        QCOMPARE(animation.currentTime(), longDuration);
        QCOMPARE(animation.currentValue().toDouble(), 1.0);

        finish(animation);
        QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
        QCOMPARE(animation.state(), QAbstractAnimation::Running);
        QCOMPARE(animation.currentTime(), 0);
        QCOMPARE(animation.currentValue().toDouble(), 0.0);
        QCOMPARE(finished.count(), 2 * iteration);
    }
}

void tst_CAnimationFwdRevLoop::runsBackAndForthInTime()
{
    QVariantAnimation animation;
    configure(animation, 40);
    new CAnimationFwdRevLoop(&animation);
    QVector<QAbstractAnimation::Direction> directions;
    connect(
        &animation, &QAbstractAnimation::directionChanged, this,
        [&directions](QAbstractAnimation::Direction direction) { directions.append(direction); });
    animation.start();
    QTRY_VERIFY(directions.size() >= 3);
    QCOMPARE(directions.at(0), QAbstractAnimation::Backward);
    QCOMPARE(directions.at(1), QAbstractAnimation::Forward);
    QCOMPARE(directions.at(2), QAbstractAnimation::Backward);
}

void tst_CAnimationFwdRevLoop::turnsShortestAnimationRound()
{
    QVariantAnimation animation;
    configure(animation, 1);
    new CAnimationFwdRevLoop(&animation);
    animation.start();
    finish(animation);
    QCOMPARE(animation.direction(), QAbstractAnimation::Backward);
    QCOMPARE(animation.state(), QAbstractAnimation::Running);
}

void tst_CAnimationFwdRevLoop::startsBackwards()
{
    QVariantAnimation animation;
    configure(animation);
    animation.setDirection(QAbstractAnimation::Backward);
    new CAnimationFwdRevLoop(&animation);
    animation.start();
    finish(animation);
    QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
    QCOMPARE(animation.state(), QAbstractAnimation::Running);
}

void tst_CAnimationFwdRevLoop::runsAllLoopsEachWay()
{
    QVariantAnimation animation;
    configure(animation);
    animation.setLoopCount(3);
    new CAnimationFwdRevLoop(&animation);
    animation.start();
    animation.setCurrentTime(longDuration);
    QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
    finish(animation);
    QCOMPARE(animation.direction(), QAbstractAnimation::Backward);
    QCOMPARE(animation.currentLoop(), 2);
    finish(animation);
    QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
    QCOMPARE(animation.currentLoop(), 0);
    QCOMPARE(animation.state(), QAbstractAnimation::Running);
}

void tst_CAnimationFwdRevLoop::drivesGroups()
{
    QParallelAnimationGroup group;
    group.addAnimation(new QPauseAnimation(longDuration));
    group.addAnimation(new QPauseAnimation(longDuration / 2));
    new CAnimationFwdRevLoop(&group);
    QCOMPARE(group.animationCount(), 2);
    group.start();
    finish(group);
    QCOMPARE(group.direction(), QAbstractAnimation::Backward);
    QCOMPARE(group.state(), QAbstractAnimation::Running);
}

void tst_CAnimationFwdRevLoop::joinsRunningAnimation()
{
    QVariantAnimation animation;
    configure(animation);
    animation.start();
    animation.setCurrentTime(longDuration / 2);
    new CAnimationFwdRevLoop(&animation);
    QCOMPARE(animation.currentTime(), longDuration / 2);
    QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
    finish(animation);
    QCOMPARE(animation.direction(), QAbstractAnimation::Backward);
    QCOMPARE(animation.state(), QAbstractAnimation::Running);
}

void tst_CAnimationFwdRevLoop::keepsAnimationWhenStopped()
{
    QPointer<QVariantAnimation> animation = new QVariantAnimation(this);
    configure(*animation);
    new CAnimationFwdRevLoop(animation);
    animation->start();
    finish(*animation);
    animation->stop();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(animation);
    delete animation;
}

void tst_CAnimationFwdRevLoop::endsWithStop_data()
{
    QTest::addColumn<int>("finishes");
    QTest::newRow("running forwards") << 0;
    QTest::newRow("running backwards") << 1;
    QTest::newRow("running forwards again") << 2;
}

void tst_CAnimationFwdRevLoop::endsWithStop()
{
    QFETCH(int, finishes);
    QVariantAnimation animation;
    configure(animation);
    new CAnimationFwdRevLoop(&animation);
    animation.start();
    for (int i = 0; i < finishes; ++i)
        finish(animation);
    const QAbstractAnimation::Direction direction = animation.direction();
    animation.stop();
    QCOMPARE(animation.state(), QAbstractAnimation::Stopped);
    QCoreApplication::processEvents();
    QCOMPARE(animation.state(), QAbstractAnimation::Stopped);
    QCOMPARE(animation.direction(), direction);
}

void tst_CAnimationFwdRevLoop::endsWithStopWithoutEnd_data()
{
    QTest::addColumn<bool>("infinite");
    QTest::newRow("infinite loop count") << true;
    QTest::newRow("undefined duration") << false;
}

// Qt emits finished() from stop() for these.
void tst_CAnimationFwdRevLoop::endsWithStopWithoutEnd()
{
    QFETCH(bool, infinite);
    auto* endless = new QVariantAnimation;
    configure(*endless);
    endless->setLoopCount(-1);
    QParallelAnimationGroup group;
    group.addAnimation(endless);
    QAbstractAnimation& animation = infinite ? static_cast<QAbstractAnimation&>(*endless) : group;
    if (infinite)
        group.removeAnimation(endless);
    QCOMPARE(animation.totalDuration(), -1);

    new CAnimationFwdRevLoop(&animation);
    QSignalSpy finished(&animation, &QAbstractAnimation::finished);
    animation.start();
    animation.stop();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(animation.state(), QAbstractAnimation::Stopped);
    QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
    if (infinite)
        delete endless;
}

void tst_CAnimationFwdRevLoop::leavesEmptyAnimationFinished_data()
{
    QTest::addColumn<int>("duration");
    QTest::addColumn<int>("loopCount");
    QTest::newRow("no duration") << 0 << 1;
    QTest::newRow("no duration, looping") << 0 << 5;
    QTest::newRow("no duration, for ever") << 0 << -1;
    QTest::newRow("no loops") << 100 << 0;
}

void tst_CAnimationFwdRevLoop::leavesEmptyAnimationFinished()
{
    QFETCH(int, duration);
    QFETCH(int, loopCount);
    QVariantAnimation animation;
    configure(animation, duration);
    animation.setLoopCount(loopCount);
    new CAnimationFwdRevLoop(&animation);
    animation.start();
    QCOMPARE(animation.state(), QAbstractAnimation::Stopped);
    QCOMPARE(animation.direction(), QAbstractAnimation::Forward);
}

void tst_CAnimationFwdRevLoop::refusesNull()
{
    QTest::ignoreMessage(QtWarningMsg, "CAnimationFwdRevLoop: there is no animation to drive");
    CAnimationFwdRevLoop loop(nullptr);
    QCOMPARE(loop.parent(), nullptr);
    QVERIFY(QMetaObject::invokeMethod(&loop, "reverseAndStart"));
}

void tst_CAnimationFwdRevLoop::survivesDeletionInFinished_data()
{
    QTest::addColumn<bool>("beforeTheLoop");
    QTest::newRow("before the loop hears of it") << true;
    QTest::newRow("after the loop has started it again") << false;
}

void tst_CAnimationFwdRevLoop::survivesDeletionInFinished()
{
    QFETCH(bool, beforeTheLoop);
    QPointer<QVariantAnimation> animation = new QVariantAnimation;
    configure(*animation, 20);
    const auto deleteIt = [&animation] { delete animation; };
    if (beforeTheLoop)
        connect(animation, &QAbstractAnimation::finished, this, deleteIt);
    const QPointer<CAnimationFwdRevLoop> loop = new CAnimationFwdRevLoop(animation);
    if (!beforeTheLoop)
        connect(animation, &QAbstractAnimation::finished, this, deleteIt);
    animation->start();
    QTRY_VERIFY(!animation);
    QVERIFY(!loop);
    QCoreApplication::processEvents();
}

void tst_CAnimationFwdRevLoop::survivesDeletionInDirectionChanged()
{
    QPointer<QVariantAnimation> animation = new QVariantAnimation;
    configure(*animation, 20);
    new CAnimationFwdRevLoop(animation);
    connect(animation, &QAbstractAnimation::directionChanged, this,
            [&animation] { delete animation; });
    animation->start();
    QTRY_VERIFY(!animation);
    QCoreApplication::processEvents();
}

void tst_CAnimationFwdRevLoop::survivesDeletionInStateChanged()
{
    QPointer<QVariantAnimation> animation = new QVariantAnimation;
    configure(*animation, 20);
    new CAnimationFwdRevLoop(animation);
    animation->start();
    connect(animation, &QAbstractAnimation::stateChanged, this,
            [&animation](QAbstractAnimation::State state) {
                if (state == QAbstractAnimation::Running)
                    delete animation;
            });
    QTRY_VERIFY(!animation);
    QCoreApplication::processEvents();
}

const test::Registration<tst_CAnimationFwdRevLoop> registration;

#include "tst_CAnimationFwdRevLoop.moc"
