#include "Animator.h"
#include "Painting.h"
#include "PaintRecorder.h"
#include "Switch.h"
#include "SwitchTools.h"
#include "TestApplication.h"
#include "UpdateCounter.h"

#include <QButtonGroup>

#include <functional>
#include <limits>
#include <memory>
#include <utility>

namespace {

/// Does something in place of the update with the number \a update.
class UpdateAction : public QObject
{
public:
    UpdateAction(int update, std::function<void()> action)
        : m_countdown(update)
        , m_action(std::move(action))
    {
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::StyleAnimationUpdate || --m_countdown != 0)
            return false;
        m_action();
        return true;
    }

private:
    int m_countdown;
    std::function<void()> m_action;
};

} // namespace

/// Bad input and objects that go away in the middle of things; the sanitizers watch.
class tst_SwitchRobustness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void disabledOpacities_data();
    void disabledOpacities();
    void negativeDuration();
    void unusableEasing_data();
    void unusableEasing();
    void wrongPropertyTypes();
    void foreignAnimatorValues_data();
    void foreignAnimatorValues();
    void deletedAnimators_data();
    void deletedAnimators();
    void settersRepaintWithoutAnimators();
    void switchDeletedMidTransition();
    void parentDeletedMidTransition();
    void deletedInClicked();
    void deletedInStateChanged();
    void deletedByItsAnimator_data();
    void deletedByItsAnimator();
    void deletedWhenToldOfAJump_data();
    void deletedWhenToldOfAJump();
    void deletedLaterInToggled();
    void vetoInClicked();
    void exclusiveGroup();
};

void tst_SwitchRobustness::disabledOpacities_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<double>("shown");
    QTest::newRow("not a number") << qQNaN() << 0.0;
    QTest::newRow("infinite") << qInf() << 1.0;
    QTest::newRow("negative infinite") << -qInf() << 0.0;
    QTest::newRow("huge") << 1e300 << 1.0;
    QTest::newRow("negative") << -1.0 << 0.0;
}

void tst_SwitchRobustness::disabledOpacities()
{
    QFETCH(double, opacity);
    QFETCH(double, shown);
    const auto pictureWith = [](double value) {
        Switch control(QStringLiteral("Label"));
        control.setEnabled(false);
        control.resize(120, 40);
        control.setTrackDisabledOpacity(value);
        control.setThumbDisabledOpacity(value);
        control.setDisabledTextOpacity(value);
        return test::paintedBy(control);
    };
    QVERIFY(test::sameImage(pictureWith(opacity), pictureWith(shown)));
}

void tst_SwitchRobustness::negativeDuration()
{
    Switch control;
    QTest::ignoreMessage(QtWarningMsg,
                         "QVariantAnimation::setDuration: cannot set a negative duration");
    control.setThumbPosAnimation({QEasingCurve::Linear, -1});
    QCOMPARE(control.thumbPosAnimation().duration, -1);
    QCOMPARE(test::animatorsOf(control).thumbPos->duration(), 150);
    control.setThumbPosAnimation({QEasingCurve::Linear, 0});
    control.show();
    control.setChecked(true);
    QCOMPARE(test::animatorsOf(control).thumbPos->currentValue(), QVariant(36));
}

void tst_SwitchRobustness::unusableEasing_data()
{
    QTest::addColumn<int>("easing");
    QTest::newRow("custom, without its function") << int(QEasingCurve::Custom);
    QTest::newRow("no curve") << int(QEasingCurve::NCurveTypes);
}

void tst_SwitchRobustness::unusableEasing()
{
    QFETCH(int, easing);
    Switch control;
    const QByteArray warning = "QEasingCurve: Invalid curve type " + QByteArray::number(easing);
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    control.setThumbPosAnimation({QEasingCurve::Type(easing), 100});
    QCOMPARE(int(control.thumbPosAnimation().easing), easing);
    QCOMPARE(test::animatorsOf(control).thumbPos->easingCurve().type(), QEasingCurve::Linear);
}

void tst_SwitchRobustness::wrongPropertyTypes()
{
    Switch control;
    QVERIFY(!control.setProperty("thumbPosAnimation", 5));
    QVERIFY(!control.setProperty("thumbPosAnimation", QStringLiteral("fast")));
    QVERIFY(control.thumbPosAnimation() == (Style::Animation{QEasingCurve::InOutQuad, 150}));
    QVERIFY(!control.setProperty("thumbOnBrush", QPoint(1, 2)));
    QVERIFY(!control.thumbOnBrush().isValid());
}

void tst_SwitchRobustness::foreignAnimatorValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("text") << QVariant(QStringLiteral("text"));
    QTest::newRow("largest") << QVariant(std::numeric_limits<int>::max());
    QTest::newRow("smallest") << QVariant(std::numeric_limits<int>::min());
}

void tst_SwitchRobustness::foreignAnimatorValues()
{
    QFETCH(QVariant, value);
    Switch control(QStringLiteral("Label"));
    control.setIndicatorMargin({std::numeric_limits<int>::max(), 0, 0, 0});
    control.resize(120, 40);
    const test::Animators animators = test::animatorsOf(control);
    for (Animator* animator : {animators.thumbPos, animators.thumbBrush, animators.trackBrush})
        animator->setCurrentValue(value);
    test::paintedBy(control);
}

void tst_SwitchRobustness::deletedAnimators_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("thumb colour") << 0;
    QTest::newRow("track colour") << 1;
    QTest::newRow("thumb position") << 2;
}

void tst_SwitchRobustness::deletedAnimators()
{
    QFETCH(int, index);
    Switch control(QStringLiteral("Label"));
    control.show();
    control.setChecked(true);
    delete control.findChildren<Animator*>().at(index);
    control.setChecked(false);
    control.setThumbOffBrush(Qt::red);
    test::paintedBy(control);
    control.hide();
    control.setChecked(true);
    test::paintedBy(control);
}

void tst_SwitchRobustness::settersRepaintWithoutAnimators()
{
    Switch control;
    qDeleteAll(control.findChildren<Animator*>());
    control.show();
    QVERIFY(QTest::qWaitForWindowExposed(&control));
    test::PaintRecorder recorder(&control);
    recorder.takeRegions();
    control.setTrackOnOpacity(0.9);
    QCOMPARE(recorder.takeRegions(), QVector<QRegion>{control.rect()});
}

void tst_SwitchRobustness::switchDeletedMidTransition()
{
    auto control = std::make_unique<Switch>();
    control->show();
    control->setChecked(true);
    const QPointer<Animator> animator = test::animatorsOf(*control).thumbPos;
    QCOMPARE(animator->state(), QAbstractAnimation::Running);
    test::UpdateCounter updates(control.get());
    control.reset();
    QVERIFY(!animator);
    QCOMPARE(updates.take(), 0);
}

void tst_SwitchRobustness::parentDeletedMidTransition()
{
    auto window = std::make_unique<QWidget>();
    const QPointer<Switch> control = new Switch(window.get());
    window->show();
    control->setChecked(true);
    const QPointer<Animator> animator = test::animatorsOf(*control).thumbPos;
    window.reset();
    QVERIFY(!control);
    QVERIFY(!animator);
    QCoreApplication::processEvents();
}

void tst_SwitchRobustness::deletedInClicked()
{
    QPointer<Switch> control = new Switch;
    connect(control, &QAbstractButton::clicked, [&control] { delete control; });
    control->show();
    QTest::mouseClick(control, Qt::LeftButton);
    QVERIFY(!control);
}

void tst_SwitchRobustness::deletedInStateChanged()
{
    QPointer<Switch> control = new Switch;
    connect(control, &SelectionControl::stateChanged, [&control] { delete control; });
    control->show();
    QTest::keyClick(control, Qt::Key_Space);
    QVERIFY(!control);
}

void tst_SwitchRobustness::deletedByItsAnimator_data()
{
    deletedAnimators_data();
}

void tst_SwitchRobustness::deletedByItsAnimator()
{
    QFETCH(int, index);
    for (const bool running : {false, true}) {
        QPointer<Switch> control = new Switch;
        control->setThumbOnOpacity(0.5); // or no colour would change
        control->show();
        const auto deleteControl = [&control] { delete std::exchange(control, nullptr); };
        Animator* animator = control->findChildren<Animator*>().at(index);
        if (running) {
            control->setChecked(true);
            test::animatorsOf(*control).runFrom(75);
            connect(animator, &Animator::valueChanged, deleteControl);
        } else {
            connect(animator, &Animator::stateChanged, deleteControl);
        }
        QTest::mouseClick(control, Qt::LeftButton);
        QVERIFY(!control);
    }
}

void tst_SwitchRobustness::deletedWhenToldOfAJump_data()
{
    QTest::addColumn<int>("update");
    QTest::newRow("thumb position") << 1;
    QTest::newRow("thumb colour") << 2;
    QTest::newRow("track colour") << 3;
}

void tst_SwitchRobustness::deletedWhenToldOfAJump()
{
    QFETCH(int, update);
    QPointer<Switch> control = new Switch;
    UpdateAction filter(update, [&control] { delete control; });
    control->installEventFilter(&filter);
    control->toggle(Qt::Checked);
    QVERIFY(!control);
}

void tst_SwitchRobustness::deletedLaterInToggled()
{
    QPointer<Switch> control = new Switch;
    connect(control, &QAbstractButton::toggled, control, &QObject::deleteLater);
    control->show();
    QTest::mouseClick(control, Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!control);
}

// An application refuses a state in clicked(); the picture follows.
void tst_SwitchRobustness::vetoInClicked()
{
    Switch control;
    connect(&control, &QAbstractButton::clicked, &control,
            [&control] { control.setChecked(false); });
    control.show();
    QTest::mouseClick(&control, Qt::LeftButton);
    QCOMPARE(control.checkState(), Qt::Unchecked);
    const test::Animators animators = test::animatorsOf(control);
    animators.holdAt(150);
    QCOMPARE(animators.thumbPos->currentValue(), QVariant(0));
    QCOMPARE(animators.trackBrush->currentValue(), QVariant(QColor(0, 0, 0, 64)));
}

void tst_SwitchRobustness::exclusiveGroup()
{
    QWidget window;
    Switch first(&window);
    Switch second(&window);
    second.move(0, 50);
    QButtonGroup group;
    group.addButton(&first);
    group.addButton(&second);
    window.show();
    QTest::mouseClick(&first, Qt::LeftButton);
    QTest::mouseClick(&second, Qt::LeftButton);
    QCOMPARE(first.checkState(), Qt::Unchecked);
    QCOMPARE(second.checkState(), Qt::Checked);
    test::animatorsOf(first).holdAt(150);
    test::animatorsOf(second).holdAt(150);
    QCOMPARE(test::animatorsOf(first).thumbPos->currentValue(), QVariant(0));
    QCOMPARE(test::animatorsOf(second).thumbPos->currentValue(), QVariant(36));
}

const test::Registration<tst_SwitchRobustness> registration;

#include "tst_SwitchRobustness.moc"
