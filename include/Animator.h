#pragma once

#include "platform_widgets_export.h"

#include <QEasingCurve>
#include <QPointer>
#include <QVariantAnimation>

/**
 * Animates one value on behalf of a target object.
 *
 * At every change of its current value the animator sends the target a
 * QEvent::StyleAnimationUpdate, not accepted. A widget that receives it schedules a repaint, and
 * its paint code then reads currentValue():
 *
 * \image html Animator.png "The sample below lighting up: its value after so many milliseconds"
 *
 * \snippet Glow.cpp Animator
 *
 * It paints nothing itself and has no hook for style sheets.
 *
 * \anchor properties_Animator
 * \par Properties
 * | Property | Getter | Setter | Default | In a style sheet |
 * |---|---|---|---|---|
 * | \c targetObject | targetObject() | setTargetObject() | as constructed | none |
 *
 * The nearest class of Qt is QPropertyAnimation, which writes a property of its target. The
 * animator writes nothing, so a value that only matters to the picture needs neither a property nor
 * a field.
 *
 * The target is not owned. Once it has been destroyed the animator runs on, but tells nobody.
 */
class PLATFORM_WIDGETS_EXPORT Animator : public QVariantAnimation
{
    Q_OBJECT
    Q_PROPERTY(QObject* targetObject READ targetObject WRITE setTargetObject)

public:
    /// Makes a stopped animator for \a object, which may be null, owned by \a parent.
    explicit Animator(QObject* object, QObject* parent = nullptr);

    /// Stops the animation first, so that nothing reaches a target that is half destroyed.
    ~Animator() override;

    /// The object that is told about new values; null if there is none or it has been destroyed.
    QObject* targetObject() const;

    /**
     * Sets the object that is told about new values; null for none.
     * A running animation refuses another target with a warning; a paused one accepts it.
     */
    void setTargetObject(QObject* object);

public Q_SLOTS:
    /**
     * Sets the \a duration in milliseconds, 0 or more, and the \a easing curve; a running animation
     * runs on. Until then the animation takes 250 ms, linearly. A negative duration is refused by
     * Qt with a warning and leaves the former one in place.
     */
    void setup(int duration, QEasingCurve easing = QEasingCurve(QEasingCurve::Linear));

    /**
     * Animates from \a start to \a end: sets both values and starts the animation.
     *
     * One that is running begins again, at time 0 or, backwards, at its end. It does so without a
     * change of state: nothing is emitted but valueChanged(), and one that was started with
     * DeleteWhenStopped is deleted when it ends. A paused animation goes on where it was paused.
     */
    void interpolate(const QVariant& start, const QVariant& end);

    /**
     * Makes \a value the current value without animating: emits valueChanged() if it is new, then
     * tells the target once.
     */
    void setCurrentValue(const QVariant& value);

protected:
    /**
     * Warns when the animation leaves QAbstractAnimation::Stopped without a target, and when it
     * changes its state forwards without an end value. It changes state in either case.
     */
    void updateState(QAbstractAnimation::State newState,
                     QAbstractAnimation::State oldState) override;

    /// Tells the target, if there is one, to look at currentValue().
    void updateCurrentValue(const QVariant& value) override;

private:
    QPointer<QObject> target;
};
