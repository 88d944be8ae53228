#include "Models.h"

#include <ui/CAnimationFwdRevLoop.h>

#include <QVariantAnimation>

namespace test {

namespace {

/// An animation that turns round at each end, as long as it has ends.
class LoopModel : public Model
{
public:
    LoopModel();
    ~LoopModel() override;

    void check() override;
    bool expectsWarning(const QString& warning) const override;

private:
    QVariantAnimation& animation();
    bool startToEnd();
    void goToEnd();
    void finish(Values& values);
    void finishAndDelete();

    QPointer<QVariantAnimation> m_animation;
};

LoopModel::LoopModel()
{
    add("start", 4, [this](Values&) { animation().start(); });
    add("stop", 1, [this](Values&) { animation().stop(); });
    add("pause", 1, [this](Values&) { animation().pause(); });
    add("resume", 2, [this](Values&) { animation().resume(); });
    add("setDuration", 3, [this](Values& v) {
        // Not 1: Qt takes the time 0 of such an animation for its end when it runs backwards.
        animation().setDuration(v.oneOf({-1, 0, 2, 100, 100000, qMax(v.integer(), 2)}));
    });
    add("setLoopCount", 2, [this](Values& v) {
        animation().setLoopCount(v.oneOf({-1, 0, 1, 1, 1, 3}));
    });
    add("setDirection", 1, [this](Values& v) {
        animation().setDirection(v.boolean() ? QAbstractAnimation::Forward
                                             : QAbstractAnimation::Backward);
    });
    add("setCurrentTime", 2, [this](Values& v) { animation().setCurrentTime(v.integer()); });
    add("finish", 8, [this](Values& v) { finish(v); });
    add("finishAndDelete", 1, [this](Values&) { finishAndDelete(); });
    add("loopOverNothing", 1, [](Values&) { ui::CAnimationFwdRevLoop loop(nullptr); });
    add("delete", 1, [this](Values&) { delete m_animation; });
    add("processEvents", 4, [](Values&) { processEvents(); });
}

LoopModel::~LoopModel()
{
    delete m_animation;
}

bool LoopModel::expectsWarning(const QString& warning) const
{
    return warning.contains(QLatin1String("there is no animation to drive"))
        || warning.startsWith(QLatin1String("QAbstractAnimation::"))
        || warning.startsWith(QLatin1String("QVariantAnimation::"));
}

QVariantAnimation& LoopModel::animation()
{
    if (!m_animation) {
        m_animation = new QVariantAnimation;
        m_animation->setStartValue(0);
        m_animation->setEndValue(100);
        m_animation->setDuration(10);
        new ui::CAnimationFwdRevLoop(m_animation);
    }
    return *m_animation;
}

/// Starts, and tells whether the animation comes to an end by itself.
bool LoopModel::startToEnd()
{
    animation().start();
    return animation().state() == QAbstractAnimation::Running && animation().totalDuration() > 0;
}

void LoopModel::goToEnd()
{
    const bool forward = animation().direction() == QAbstractAnimation::Forward;
    animation().setCurrentTime(forward ? animation().totalDuration() : 0);
}

/// At the end that it runs to it is to turn round and go on.
void LoopModel::finish(Values& values)
{
    if (!startToEnd())
        return;
    const auto before = animation().direction();
    if (values.below(4) == 0)
        animation().setCurrentTime(values.below(animation().totalDuration()));
    if (animation().direction() != before)
        return; // that was an end already
    goToEnd();
    expect(animation().direction() != before, "the direction alternates");
    compare("state", animation().state(), QAbstractAnimation::Running);
}

/// In a slot of what the loop does at the end.
void LoopModel::finishAndDelete()
{
    if (!startToEnd())
        return;
    QVariantAnimation* dying = &animation();
    QObject::connect(dying, &QAbstractAnimation::directionChanged, dying,
                     [dying] { delete dying; });
    goToEnd();
    expect(!m_animation, "the animation turned round and was deleted");
}

void LoopModel::check()
{
    compare("loops", animation().findChildren<ui::CAnimationFwdRevLoop*>().size(), 1);
}

} // namespace

std::unique_ptr<Model> newLoopModel()
{
    return std::make_unique<LoopModel>();
}

} // namespace test
