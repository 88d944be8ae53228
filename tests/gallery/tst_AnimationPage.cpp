#include "TestApplication.h"

#include "GalleryPage.h"
#include "pages/Pages.h"
#include <pages/Beacon.h>

#include <QPropertyAnimation>
#include <QPushButton>

#include <memory>

class tst_AnimationPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pulsesBackAndForth();
    void stopsAndStarts();
};

void tst_AnimationPage::pulsesBackAndForth()
{
    const std::unique_ptr<GalleryPage> page(makeAnimationPage(nullptr));
    auto* beacon = page->findChild<Beacon*>();
    QVERIFY(beacon);
    auto* pulse = beacon->findChild<QPropertyAnimation*>();
    QVERIFY(pulse);
    pulse->setCurrentTime(pulse->totalDuration());
    QCOMPARE(beacon->brightness(), 0.0);
    QCOMPARE(pulse->direction(), QAbstractAnimation::Backward);
    pulse->setCurrentTime(0);
    QCOMPARE(beacon->brightness(), 1.0);
    QCOMPARE(pulse->direction(), QAbstractAnimation::Forward);
    QCOMPARE(pulse->state(), QAbstractAnimation::Running);
}

void tst_AnimationPage::stopsAndStarts()
{
    const std::unique_ptr<GalleryPage> page(makeAnimationPage(nullptr));
    auto* pulse = page->findChild<Beacon*>()->findChild<QPropertyAnimation*>();
    auto* button = page->findChild<QPushButton*>();
    QVERIFY(button);
    button->click();
    QCOMPARE(pulse->state(), QAbstractAnimation::Stopped);
    QCOMPARE(button->text(), QStringLiteral("Start"));
    button->click();
    QCOMPARE(pulse->state(), QAbstractAnimation::Running);
    QCOMPARE(button->text(), QStringLiteral("Stop"));
}

const test::Registration<tst_AnimationPage> registration;

#include "tst_AnimationPage.moc"
