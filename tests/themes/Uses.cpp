#include "Uses.h"

#include "Stage.h"
#include "Tree.h"

#include <BreadCrumbsWidget.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QAbstractButton>
#include <QLabel>

using ui::KeypadLineEdit;
using ui::keyboard::KeyboardType;

namespace soak {

namespace {

using Round = std::function<bool(int)>;

constexpr Style::Animation shortest{QEasingCurve::Linear, 1};

Switch* newSwitch(QWidget& window)
{
    auto* toggle = new Switch(QStringLiteral("label"), &window);
    toggle->setThumbPosAnimation(shortest);
    toggle->setThumbBrushAnimation(shortest);
    toggle->setTrackBrushAnimation(shortest);
    return toggle;
}

Round toggle(QWidget& window)
{
    Switch* toggle = newSwitch(window);
    return [toggle](int) {
        const bool before = toggle->isChecked();
        toggle->click();
        turnEventLoop();
        return toggle->isChecked() != before;
    };
}

Round charge(QWidget& window)
{
    auto* battery = new ui::CBatteryStatusWidget(&window);
    battery->resize(50, 100);
    return [battery](int round) {
        battery->setChargePercentage(round % 101);
        battery->setBatteryCharging(round % 7 == 0);
        battery->setBatteryPresent(round % 11 != 0);
        turnEventLoop();
        return true;
    };
}

Round scroll(QWidget& window)
{
    auto* bar = new ui::widgets::ScrollIndicatorBar(Qt::Horizontal, &window);
    bar->resize(200, 5);
    return [bar](int round) {
        bar->setValue(round % 100);
        bar->setHighlightBar(round % 2 == 0);
        turnEventLoop();
        return true;
    };
}

void press(const KeypadLineEdit& field, const char* name)
{
    const auto keys = field.keypad()->findChildren<QAbstractButton*>();
    for (QAbstractButton* key : keys) {
        if (key->accessibleName() == QLatin1String(name))
            key->click();
    }
}

/// The focus from field to field, with an edit that is committed, cancelled or left.
Round edit(QWidget& window)
{
    auto* first = new KeypadLineEdit(&window, KeyboardType::Integer);
    auto* second = new KeypadLineEdit(&window, KeyboardType::Text);
    second->move(0, 50);
    return [=](int round) {
        KeypadLineEdit* field = round % 2 == 0 ? first : second;
        field->setFocus();
        turnEventLoop();
        const bool shown = field->keypad() && field->keypad()->isVisible();
        field->insert(QStringLiteral("1"));
        if (shown && round % 3 < 2)
            press(*field, round % 3 == 0 ? "OK" : "Cancel");
        else
            field->clearFocus();
        turnEventLoop();
        field->setText(QString());
        return shown && !field->keypad()->isVisible();
    };
}

Round browse(QWidget& window)
{
    const auto tree = std::make_shared<test::Tree>();
    const QStringList names{QStringLiteral("a/b/c/d/e"), QStringLiteral("a/f"),
                            QStringLiteral("g")};
    for (const QString& name : names)
        tree->makeDir(name);
    auto* browser = new ui::FileBrowserWidget(&window);
    browser->resize(window.size());
    browser->setAllowedDirs({tree->path()});
    return [=](int round) {
        const QString path = tree->path(names.at(round % names.size()));
        Q_EMIT browser->findChild<BreadCrumbsWidget*>()->dirChanged(path);
        turnEventLoop();
        return browser->currentPath() == path;
    };
}

Round followCrumbs(QWidget& window)
{
    auto* bar = new BreadCrumbsWidget(&window);
    return [bar](int round) {
        bar->changeDir(QStringLiteral("/a/b/c/d/e").left(2 + 2 * (round % 5)));
        turnEventLoop();
        return true;
    };
}

/// Windows that are opened, filled and closed.
Round open(QWidget&)
{
    return [](int round) {
        QWidget window;
        newSwitch(window)->setChecked(true);
        auto* frame = new ui::CRoundedFrame(&window);
        frame->enableWidgetMask(true);
        auto* button = new ui::CGridArrangedButton(frame);
        button->addWidget(new QLabel(QStringLiteral("label")), 0, 0);
        new ui::CBatteryStatusWidget(&window);
        auto* field = new KeypadLineEdit(&window, KeyboardType::Integer);
        if (round % 10 == 0)
            new ui::FileBrowserWidget(&window);
        window.show();
        field->showKeypad();
        turnEventLoop();
        return field->keypad()->isVisible();
    };
}

} // namespace

QVector<Use> uses()
{
    return {{"toggles", toggle},     {"charge updates", charge},    {"scrolling", scroll},
            {"focus cycles", edit},  {"directory changes", browse}, {"crumbs", followCrumbs},
            {"windows opened", open}};
}

} // namespace soak
