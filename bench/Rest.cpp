#include "Rest.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

namespace bench {

namespace {

constexpr int settling = 1000; // milliseconds until the directory is read and everything painted

void fill(QWidget* window)
{
    auto* layout = new QVBoxLayout(window);
    auto* battery = new ui::CBatteryStatusWidget;
    battery->setBatteryCharging(true);
    auto* on = new Switch(QStringLiteral("On"));
    on->setChecked(true);
    auto* browser = new ui::FileBrowserWidget;
    browser->setAllowedDirs({QDir::rootPath()});
    for (QWidget* widget : {static_cast<QWidget*>(battery), static_cast<QWidget*>(on),
                            static_cast<QWidget*>(browser)})
        layout->addWidget(widget);
    layout->addWidget(new ui::CRoundedFrame);
    layout->addWidget(new ui::CGridArrangedButton);
    layout->addWidget(new ui::LineEdit);
    layout->addWidget(new ui::KeypadLineEdit(window));
    layout->addWidget(new ClickableLabel(window));
    layout->addWidget(new ui::widgets::ScrollIndicatorBar);
}

void runEventLoop(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

int wakeUpsOf(QWidget& window, int milliseconds)
{
    window.show();
    runEventLoop(settling);
    int wakeUps = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                     &window, [&wakeUps] { ++wakeUps; });
    runEventLoop(milliseconds);
    return wakeUps;
}

} // namespace

void countWakeUps(const QStringList& arguments, QTextStream& out)
{
    const int watching = arguments.value(0).toInt();
    QWidget full;
    fill(&full);
    QWidget empty; // the loop itself wakes up at its start and its end
    out << watching << '\t' << wakeUpsOf(full, watching) << '\t' << wakeUpsOf(empty, watching)
        << '\n';
}

} // namespace bench
