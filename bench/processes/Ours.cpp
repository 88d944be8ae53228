#include "Widgets.h"

#include "SettingsPanel.h"
#include "Theme.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QApplication>

namespace bench {

namespace {

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

QWidget* makeSwitch(QWidget* parent)
{
    return new Switch(QStringLiteral("label"), parent);
}

QWidget* makeLabel(QWidget* parent)
{
    auto* label = new ClickableLabel(parent);
    label->setText(QStringLiteral("label"));
    return label;
}

} // namespace

QVector<Maker> makers()
{
    return {make<ui::CRoundedFrame>,
            make<ui::CGridArrangedButton>,
            make<ui::CBatteryStatusWidget>,
            make<ui::widgets::ScrollIndicatorBar>,
            make<ui::LineEdit>,
            make<ui::KeypadLineEdit>,
            makeSwitch,
            makeLabel,
            make<BreadCrumbsWidget>};
}

QWidget* makeBrowser(const QString& directory)
{
    auto* browser = new ui::FileBrowserWidget(nullptr);
    browser->setAllowedDirs({directory});
    return browser;
}

QWidget* makeFileDialog(const QString& directory)
{
    return makeBrowser(directory);
}

QWidget* makeSettings()
{
    Theme::apply(*qApp, false);
    return new SettingsPanel({}, false);
}

QWidget* makeIconButton(const QString& icon, QWidget* parent)
{
    return new QPushButton(QIcon(icon), QString(), parent);
}

} // namespace bench
