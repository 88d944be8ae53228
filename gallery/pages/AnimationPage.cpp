#include "DemoParts.h"
#include "GalleryPage.h"
#include "Pages.h"
#include "Touch.h"

#include <ui/CAnimationFwdRevLoop.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int margin = 16;
constexpr int spacing = 12;
constexpr int pulseDuration = 900;
constexpr int sweepDuration = 2500;
constexpr int greetingTime = 6000; // milliseconds; then the page is at rest

QPropertyAnimation* makeAnimation(QWidget* target, const QByteArray& property, int duration)
{
    auto* animation = new QPropertyAnimation(target, property, target);
    animation->setEasingCurve(QEasingCurve::InOutSine);
    animation->setDuration(duration);
    new ui::CAnimationFwdRevLoop(animation);
    return animation;
}

/// Animations that ui::CAnimationFwdRevLoop drives back and forth.
class AnimationPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(AnimationPage)

public:
    explicit AnimationPage(QWidget* parent = nullptr);

private:
    QLayout* makePulse();
    QLayout* makeSweep();
    static void greet(QVariantAnimation* animation, const QPushButton* button);
    static QPushButton* makeSwitch(QVariantAnimation* animation);
    static QLabel* makeState(QVariantAnimation* animation);
    static QString stateText(const QVariantAnimation& animation);
};

AnimationPage::AnimationPage(QWidget* parent)
    : GalleryPage(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(2 * spacing);
    column->addWidget(touch::makeLabel(tr("Each animation runs to its end and back again.")));
    column->addLayout(makePulse());
    column->addLayout(makeSweep());
    column->addStretch();
}

QLayout* AnimationPage::makePulse()
{
    auto* beacon = new Beacon;
    addDemoWidget(beacon, tr("Pulsing light"));
    QPropertyAnimation* pulse = makeAnimation(beacon, "brightness", pulseDuration);
    pulse->setStartValue(1.0);
    pulse->setEndValue(0.0);
    addSource(pulse, tr("Pulse"));
    QPushButton* button = makeSwitch(pulse);
    greet(pulse, button);

    auto* controls = new QVBoxLayout;
    controls->setSpacing(spacing);
    controls->addStretch();
    controls->addWidget(makeState(pulse));
    controls->addWidget(button);
    controls->addStretch();

    auto* row = new QHBoxLayout;
    row->setSpacing(2 * spacing);
    row->addWidget(beacon);
    row->addLayout(controls, 1);
    return row;
}

QLayout* AnimationPage::makeSweep()
{
    auto* bar = new QProgressBar;
    bar->setRange(0, 1000);
    bar->setTextVisible(false);
    addDemoWidget(bar, tr("Sweeping bar"));
    QPropertyAnimation* sweep = makeAnimation(bar, "value", sweepDuration);
    sweep->setStartValue(bar->minimum());
    sweep->setEndValue(bar->maximum());
    addSource(sweep, tr("Sweep"));
    QPushButton* button = makeSwitch(sweep);
    greet(sweep, button);

    auto* column = new QVBoxLayout;
    column->setSpacing(spacing);
    column->addWidget(bar);
    column->addWidget(makeState(sweep));
    column->addWidget(button);
    return column;
}

/// Runs it for a moment, and from then on as long as the user wants.
void AnimationPage::greet(QVariantAnimation* animation, const QPushButton* button)
{
    auto* end = new QTimer(animation);
    end->setSingleShot(true);
    connect(end, &QTimer::timeout, animation, &QAbstractAnimation::stop);
    connect(button, &QPushButton::clicked, end, &QTimer::stop);
    end->start(greetingTime);
    animation->start();
}

QPushButton* AnimationPage::makeSwitch(QVariantAnimation* animation)
{
    auto* button = new QPushButton(tr("Stop"));
    button->setMinimumHeight(touch::targetSize);
    connect(button, &QPushButton::clicked, animation, [animation] {
        if (animation->state() == QAbstractAnimation::Running)
            animation->stop();
        else
            animation->start();
    });
    connect(animation, &QAbstractAnimation::stateChanged, button,
            [button](QAbstractAnimation::State state) {
                button->setText(state == QAbstractAnimation::Running ? tr("Stop") : tr("Start"));
            });
    return button;
}

QLabel* AnimationPage::makeState(QVariantAnimation* animation)
{
    QLabel* label = touch::makeLabel();
    label->setObjectName(QStringLiteral("state"));
    const auto showState = [animation, label] { label->setText(stateText(*animation)); };
    connect(animation, &QAbstractAnimation::stateChanged, label, showState);
    connect(animation, &QAbstractAnimation::directionChanged, label, showState);
    showState();
    return label;
}

QString AnimationPage::stateText(const QVariantAnimation& animation)
{
    if (animation.state() != QAbstractAnimation::Running)
        return tr("Stopped");
    return animation.direction() == QAbstractAnimation::Forward ? tr("Running forwards")
                                                                : tr("Running backwards");
}

} // namespace

GalleryPage* makeAnimationPage(QWidget* parent)
{
    return new AnimationPage(parent);
}
