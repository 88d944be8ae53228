#include "Workloads.h"

#include "AllClasses.h"
#include "EventLoop.h"
#include "KeypadKeys.h"
#include "Tree.h"

#include <BreadCrumbsWidget.h>
#include <Switch.h>
#include <ui/CAnimationFwdRevLoop.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/FileSystemModel.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QPushButton>
#include <QtTest>
#include <QVariantAnimation>

using ui::KeypadLineEdit;
using ui::keyboard::KeyboardType;

namespace test {

namespace {

using Iteration = std::function<bool(int)>;

constexpr Style::Animation shortest{QEasingCurve::Linear, 1};

Switch* newSwitch(QWidget& window)
{
    auto* toggle = new Switch(QStringLiteral("label"), &window);
    toggle->setThumbPosAnimation(shortest);
    toggle->setThumbBrushAnimation(shortest);
    toggle->setTrackBrushAnimation(shortest);
    return toggle;
}

Iteration toggle(QWidget& window)
{
    Switch* toggle = newSwitch(window);
    return [toggle](int) {
        const bool before = toggle->isChecked();
        toggle->click();
        processEvents();
        return toggle->isChecked() != before;
    };
}

Iteration charge(QWidget& window)
{
    auto* battery = new ui::CBatteryStatusWidget(&window);
    battery->resize(50, 100);
    return [battery](int iteration) {
        battery->setChargePercentage(iteration % 101);
        battery->setBatteryCharging(iteration % 7 == 0);
        battery->setBatteryPresent(iteration % 11 != 0);
        processEvents();
        return true;
    };
}

Iteration scroll(QWidget& window)
{
    auto* bar = new ui::widgets::ScrollIndicatorBar(Qt::Horizontal, &window);
    bar->resize(200, 5);
    return [bar](int iteration) {
        bar->setValue(iteration % 100);
        bar->setHighlightBar(iteration % 2 == 0);
        processEvents();
        return true;
    };
}

/// The focus from field to field, with an edit that is committed, cancelled or left.
Iteration edit(QWidget& window)
{
    auto* first = new KeypadLineEdit(&window, KeyboardType::Integer);
    auto* second = new KeypadLineEdit(&window, KeyboardType::Text);
    second->move(0, 50);
    return [=](int iteration) {
        KeypadLineEdit* field = iteration % 2 == 0 ? first : second;
        const auto isShown = [field] { return field->keypad() && field->keypad()->isVisible(); };
        field->setFocus();
        processEvents();
        const bool shown = QTest::qWaitFor([&] {
            // Under load a window manager may take the focus from a window that was shown again.
            if (!field->isActiveWindow())
                field->activateWindow();
            return isShown();
        });
        if (!shown)
            return false;
        field->insert(QStringLiteral("1"));
        if (iteration % 3 < 2)
            keypadKey(*field->keypad(), iteration % 3 == 0 ? "OK" : "Cancel")->click();
        else
            field->clearFocus();
        processEvents();
        const bool hidden = QTest::qWaitFor([isShown] { return !isShown(); });
        field->setText(QString());
        return hidden;
    };
}

Iteration browse(QWidget& window)
{
    const auto tree = std::make_shared<test::Tree>();
    const QStringList names{QStringLiteral("a/b/c/d/e"), QStringLiteral("a/f"),
                            QStringLiteral("g")};
    for (const QString& name : names)
        tree->makeDir(name);
    auto* browser = new ui::FileBrowserWidget(&window);
    browser->resize(window.size());
    browser->setAllowedDirs({tree->path()});
    return [=](int iteration) {
        const QString path = tree->path(names.at(iteration % names.size()));
        Q_EMIT browser->findChild<BreadCrumbsWidget*>()->dirChanged(path);
        processEvents();
        return browser->currentPath() == path;
    };
}

Iteration followCrumbs(QWidget& window)
{
    auto* bar = new BreadCrumbsWidget(&window);
    return [bar](int iteration) {
        bar->changeDir(QStringLiteral("/a/b/c/d/e").left(2 + 2 * (iteration % 5)));
        processEvents();
        return true;
    };
}

/// An animation that reaches its end, and turns round.
Iteration loop(QWidget& window)
{
    auto* animation = new QVariantAnimation(&window);
    animation->setStartValue(0);
    animation->setEndValue(100);
    new ui::CAnimationFwdRevLoop(animation);
    animation->start();
    return [animation](int) {
        const auto before = animation->direction();
        const bool forward = before == QAbstractAnimation::Forward;
        animation->setCurrentTime(forward ? animation->duration() : 0);
        processEvents();
        return animation->direction() != before;
    };
}

/// With a thread, which takes much longer to make than any widget.
bool readsDirectories(const ClassInfo& info)
{
    return info.metaObject == &ui::FileBrowserWidget::staticMetaObject
        || info.metaObject == &ui::FileSystemModel::staticMetaObject;
}

/// Windows with an object of every class that are opened, filled and closed.
Iteration open(QWidget&)
{
    return [](int iteration) {
        QWidget window;
        for (const ClassInfo& info : allClasses()) {
            if (iteration % 10 == 0 || !readsDirectories(info))
                info.createTypical(&window);
        }
        for (auto* toggle : window.findChildren<Switch*>())
            toggle->setChecked(true);
        for (auto* frame : window.findChildren<ui::CRoundedFrame*>())
            frame->enableWidgetMask(true);
        window.show();
        auto* field = window.findChild<KeypadLineEdit*>();
        // The keypad may be gone again by then, as a new window gets the focus from an X server.
        const QSignalSpy opened(field, &KeypadLineEdit::startKeypad);
        field->showKeypad();
        return QTest::qWaitFor([&] { return !opened.isEmpty(); });
    };
}

} // namespace

QVector<Workload> workloads()
{
    return {
        {"toggles", toggle},       {"charge updates", charge},    {"scrolling", scroll},
        {"focus cycles", edit},    {"directory changes", browse}, {"crumbs", followCrumbs},
        {"animation loops", loop}, {"windows opened", open},
    };
}

} // namespace test
