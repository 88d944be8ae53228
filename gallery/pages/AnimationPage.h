#pragma once

#include "GalleryPage.h"

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
class QVariantAnimation;
QT_END_NAMESPACE

/// Animations that ui::CAnimationFwdRevLoop drives back and forth.
class AnimationPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit AnimationPage(QWidget* parent = nullptr);

private:
    QLayout* makePulse();
    QLayout* makeSweep();
    static QPushButton* makeSwitch(QVariantAnimation* animation);
    static QLabel* makeDirection(QVariantAnimation* animation);
};
