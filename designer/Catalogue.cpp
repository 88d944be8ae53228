#include "Catalogue.h"

#include <BreadCrumbsWidget.h>
#include <ClickableLabel.h>
#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CGridArrangedButton.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/KeypadLineEdit.h>
#include <ui/LineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QColor>
#include <QCoreApplication>

namespace {

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

void showPath(QWidget* widget)
{
    auto* bar = static_cast<BreadCrumbsWidget*>(widget);
    bar->setRootPath(QStringLiteral("/"));
    bar->changeDir(QStringLiteral("/home/user"));
}

void showCharge(QWidget* widget)
{
    static_cast<ui::CBatteryStatusWidget*>(widget)->setChargePercentage(60);
}

struct Designer
{
    Q_DECLARE_TR_FUNCTIONS(Designer)
};

QString stringProperty(const char* name, const QString& value)
{
    return QStringLiteral("<property name=\"%1\"><string>%2</string></property>")
        .arg(QLatin1String(name), value);
}

QString colorProperty(const char* name, const QColor& color)
{
    return QStringLiteral(
               "<property name=\"%1\"><color><red>%2</red><green>%3</green><blue>%4</blue>"
               "</color></property>")
        .arg(QLatin1String(name))
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

/// A switch has no colours of its own: without these it would be black.
QString switchProperties()
{
    const QColor accent(80, 7, 120);
    return stringProperty("text", Designer::tr("Switch")) + colorProperty("thumbOnBrush", accent)
        + colorProperty("trackOnBrush", QColor(183, 155, 198))
        + colorProperty("thumbOffBrush", QColor(250, 250, 250))
        + colorProperty("trackOffBrush", QColor(160, 160, 160))
        + colorProperty("thumbDisabled", QColor(190, 190, 190))
        + colorProperty("trackDisabled", QColor(220, 220, 220));
}

QString verticalOrientation()
{
    return QStringLiteral("<property name=\"orientation\"><enum>Qt::Vertical</enum></property>");
}

QString icon(const char* stem)
{
    return QStringLiteral(":/platform_widgets_designer/%1.svg").arg(QLatin1String(stem));
}

QVector<WidgetDescription> containers()
{
    const QString group = Designer::tr("Platform Containers");
    return {
        {QStringLiteral("ui::CRoundedFrame"),
         QStringLiteral("QWidget"),
         QStringLiteral("ui/CRoundedFrame.h"),
         group,
         Designer::tr("Container with a rounded outline"),
         icon("rounded-frame"),
         {200, 140},
         {},
         true,
         make<ui::CRoundedFrame>},
        {QStringLiteral("ui::CGridArrangedButton"),
         QStringLiteral("QPushButton"),
         QStringLiteral("ui/CGridArrangedButton.h"),
         group,
         Designer::tr("Push button that carries a grid of widgets"),
         icon("grid-button"),
         {160, 80},
         {},
         true,
         make<ui::CGridArrangedButton>},
    };
}

QVector<WidgetDescription> indicators()
{
    const QString group = Designer::tr("Platform Indicators");
    return {
        {QStringLiteral("ui::CBatteryStatusWidget"),
         QStringLiteral("QWidget"),
         QStringLiteral("ui/CBatteryStatusWidget.h"),
         group,
         Designer::tr("Battery symbol"),
         icon("battery"),
         {60, 100},
         {},
         false,
         make<ui::CBatteryStatusWidget>,
         showCharge},
        {QStringLiteral("ui::widgets::ScrollIndicatorBar"),
         QStringLiteral("QScrollBar"),
         QStringLiteral("ui/ScrollIndicatorBar.h"),
         group,
         Designer::tr("Thin scroll bar"),
         icon("scroll-indicator"),
         {5, 160},
         verticalOrientation(),
         false,
         make<ui::widgets::ScrollIndicatorBar>},
    };
}

QVector<WidgetDescription> inputs()
{
    const QString group = Designer::tr("Platform Input");
    return {
        {QStringLiteral("ui::LineEdit"),
         QStringLiteral("QLineEdit"),
         QStringLiteral("ui/LineEdit.h"),
         group,
         Designer::tr("Line edit that commits on OK and reverts on Cancel"),
         icon("line-edit"),
         {160, 40},
         {},
         false,
         make<ui::LineEdit>},
        {QStringLiteral("ui::KeypadLineEdit"),
         QStringLiteral("QLineEdit"),
         QStringLiteral("ui/KeypadLineEdit.h"),
         group,
         Designer::tr("Line edit with an on-screen keypad"),
         icon("keypad-line-edit"),
         {160, 40},
         {},
         false,
         make<ui::KeypadLineEdit>},
        {QStringLiteral("Switch"),
         QStringLiteral("QAbstractButton"),
         QStringLiteral("Switch.h"),
         group,
         Designer::tr("Animated on/off switch with a label"),
         icon("switch"),
         {160, 40},
         switchProperties(),
         false,
         make<Switch>},
    };
}

QVector<WidgetDescription> fileBrowsing()
{
    const QString group = Designer::tr("Platform File Browsing");
    return {
        {QStringLiteral("ui::FileBrowserWidget"),
         QStringLiteral("QWidget"),
         QStringLiteral("ui/FileBrowserWidget.h"),
         group,
         Designer::tr("File picker below allowed directories"),
         icon("file-browser"),
         {400, 280},
         {},
         false,
         make<ui::FileBrowserWidget>},
        {QStringLiteral("BreadCrumbsWidget"),
         QStringLiteral("QWidget"),
         QStringLiteral("BreadCrumbsWidget.h"),
         group,
         Designer::tr("Path of clickable components"),
         icon("bread-crumbs"),
         {240, 40},
         {},
         false,
         make<BreadCrumbsWidget>,
         showPath},
        {QStringLiteral("ClickableLabel"),
         QStringLiteral("QLabel"),
         QStringLiteral("ClickableLabel.h"),
         group,
         Designer::tr("Label that reports a press"),
         icon("clickable-label"),
         {120, 32},
         stringProperty("text", Designer::tr("Label")),
         false,
         make<ClickableLabel>},
    };
}

} // namespace

QVector<WidgetDescription> widgetCatalogue()
{
    return containers() + indicators() + inputs() + fileBrowsing();
}
