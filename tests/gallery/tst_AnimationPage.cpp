#include "TestApplication.h"

#include "GalleryPage.h"
#include "pages/DemoParts.h"
#include "pages/Pages.h"

#include <QPropertyAnimation>
#include <QPushButton>
#include <QTimer>

#include <memory>

class tst_AnimationPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pulsesBackAndForth();
    void stopsAndStarts();
    void restsAfterGreeting();
    void runsOnOnceStarted();
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

void tst_AnimationPage::restsAfterGreeting()
{
    const std::unique_ptr<GalleryPage> page(makeAnimationPage(nullptr));
    const auto animations = page->findChildren<QPropertyAnimation*>();
    QCOMPARE(animations.size(), 2);
    for (const auto* animation : animations) {
        auto* greeting = animation->findChild<QTimer*>();
        QVERIFY(greeting->isActive() && greeting->isSingleShot());
        greeting->setInterval(0);
        QTRY_COMPARE(animation->state(), QAbstractAnimation::Stopped);
    }
    for (const auto* button : page->findChildren<QPushButton*>())
        QCOMPARE(button->text(), QStringLiteral("Start"));
}

void tst_AnimationPage::runsOnOnceStarted()
{
    const std::unique_ptr<GalleryPage> page(makeAnimationPage(nullptr));
    const auto* pulse = page->findChild<Beacon*>()->findChild<QPropertyAnimation*>();
    const auto* greeting = pulse->findChild<QTimer*>();
    auto* button = page->findChild<QPushButton*>();
    button->click();
    QVERIFY(!greeting->isActive());
    button->click();
    QVERIFY(!greeting->isActive());
    QCOMPARE(pulse->state(), QAbstractAnimation::Running);
}

const test::Registration<tst_AnimationPage> registration;

#include "tst_AnimationPage.moc"
