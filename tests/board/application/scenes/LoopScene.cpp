#include "scenes/LoopScene.h"

#include "Journal.h"

#include <ui/CAnimationFwdRevLoop.h>

#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>

LoopScene::LoopScene(Journal& journal)
{
    constexpr int duration = 200;
    auto* ball = new QLabel(QStringLiteral("●"), this);
    ball->setObjectName(QStringLiteral("ball"));
    ball->move(20, 20);

    auto* animation = new QPropertyAnimation(ball, "pos", this);
    animation->setDuration(duration);
    animation->setStartValue(QPoint(20, 20));
    animation->setEndValue(QPoint(220, 20));
    auto* loop = new ui::CAnimationFwdRevLoop(animation);
    loop->setParent(this);
    connect(animation, &QAbstractAnimation::finished, this,
            [ball, &journal] { journal.record(QStringLiteral("at %1").arg(ball->x())); });

    connect(addButton(QStringLiteral("Start"), QPoint(20, 80)), &QPushButton::clicked, animation,
            [animation] { animation->start(); });
    connect(addButton(QStringLiteral("Stop"), QPoint(150, 80)), &QPushButton::clicked, animation,
            &QAbstractAnimation::stop);
}

QPushButton* LoopScene::addButton(const QString& name, const QPoint& position)
{
    auto* button = new QPushButton(name, this);
    button->setObjectName(name);
    button->setGeometry(QRect(position, QSize(100, 44)));
    return button;
}
