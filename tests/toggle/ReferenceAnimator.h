#pragma once

#include <QPointer>
#include <QVariantAnimation>

namespace test {

/// The rules of Animator word by word: what it is compared with.
class ReferenceAnimator : public QVariantAnimation
{
public:
    ReferenceAnimator(QObject* target, QObject* parent);
    ~ReferenceAnimator() override;

    void setTargetObject(QObject* target);
    void setup(int duration, const QEasingCurve& easing);
    void interpolate(const QVariant& start, const QVariant& end);
    void setCurrentValue(const QVariant& value);

protected:
    void updateState(State newState, State oldState) override;
    void updateCurrentValue(const QVariant& value) override;

private:
    QPointer<QObject> m_target;
    bool m_silent = false; ///< While a jump sets its values: the target is told once.
};

} // namespace test
