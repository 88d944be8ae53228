#include "Samples.h"

#include <ui/CAnimationFwdRevLoop.h>

#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPropertyAnimation>

void samples::animationLoop(QWidget* window)
{
    //! [CAnimationFwdRevLoop]
    auto* alarm = new QLabel(QObject::tr("Alarm"), window);
    auto* effect = new QGraphicsOpacityEffect(alarm);
    alarm->setGraphicsEffect(effect);

    auto* pulse = new QPropertyAnimation(effect, "opacity", alarm);
    pulse->setStartValue(1.0);
    pulse->setEndValue(0.2);
    pulse->setDuration(800);
    new ui::CAnimationFwdRevLoop(pulse); // owned by the animation
    pulse->start();
    //! [CAnimationFwdRevLoop]
}
