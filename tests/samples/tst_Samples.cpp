#include "Samples.h"

#include "Glow.h"
#include "Lamp.h"
#include "OffscreenMessages.h"
#include "TestApplication.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CAnimationFwdRevLoop.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

namespace {

struct Sample
{
    const char* className;
    void (*run)(QWidget* window);
    QObject* (*find)(const QWidget& window);
};

template <typename Class>
QObject* find(const QWidget& window)
{
    return window.findChild<Class*>();
}

const Sample allSamples[] = {
    {"Animator", samples::animator, find<Animator>},
    {"BreadCrumbsWidget", samples::breadCrumbs, find<BreadCrumbsWidget>},
    {"CAnimationFwdRevLoop", samples::animationLoop, find<ui::CAnimationFwdRevLoop>},
    {"CBatteryStatusWidget", samples::battery, find<ui::CBatteryStatusWidget>},
    {"CGridArrangedButton", samples::gridButton, find<ui::CGridArrangedButton>},
    {"CRoundedFrame", samples::roundedFrame, find<ui::CRoundedFrame>},
    {"ClickableLabel", samples::clickableLabel, find<ClickableLabel>},
    {"FileBrowserWidget", samples::fileBrowser, find<ui::FileBrowserWidget>},
    {"FileSystemModel", samples::fileSystemModel, find<ui::FileSystemModel>},
    {"KeypadLineEdit", samples::keypadLineEdit, find<ui::KeypadLineEdit>},
    {"KeypadPopup", samples::keypadPopup, find<ui::KeypadPopup>},
    {"LineEdit", samples::lineEdit, find<ui::LineEdit>},
    {"ScrollIndicatorBar", samples::scrollIndicator, find<ui::widgets::ScrollIndicatorBar>},
    {"SelectionControl", samples::selectionControl, find<SelectionControl>},
    {"Switch", samples::switchControl, find<Switch>},
};

} // namespace

/// The samples of the reference do what they are for, without a warning.
class tst_Samples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyClassHasSample();
    void runs_data();
    void runs();
};

void tst_Samples::initTestCase()
{
    test::dropOffscreenMessages();
}

void tst_Samples::everyClassHasSample()
{
    QStringList names;
    for (const Sample& sample : allSamples)
        names.append(QString::fromLatin1(sample.className));
    names.sort();
    QStringList expected = QStringLiteral(PUBLIC_CLASSES).split(QLatin1Char('|'));
    expected.sort();
    QCOMPARE(names, expected);
}

void tst_Samples::runs_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(allSamples)); ++i)
        QTest::newRow(allSamples[i].className) << i;
}

void tst_Samples::runs()
{
    QFETCH(int, index);
    const Sample& sample = allSamples[index];

    auto* window = new QWidget;
    sample.run(window);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    const QPointer<QObject> object = sample.find(*window);
    QVERIFY(object);
    QVERIFY(!window->grab().isNull());
    delete window;
    QVERIFY(!object); // all that a sample makes belongs to its window
}

const test::Registration<tst_Samples> registration;

#include "tst_Samples.moc"
