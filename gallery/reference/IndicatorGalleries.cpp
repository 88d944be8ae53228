#include "ClassPictures.h"

#include "Appearance.h"

#include <ui/CBatteryStatusWidget.h>
#include <ui/ScrollIndicatorBar.h>

#include <QCoreApplication>

using ui::CBatteryStatusWidget;
using ui::widgets::ScrollIndicatorBar;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(IndicatorGalleries)
};

constexpr QSize size(56, 98);
constexpr int usualPercent = 60;

CBatteryStatusWidget* makeBattery(int percent)
{
    auto* battery = new CBatteryStatusWidget;
    battery->setFixedSize(size);
    battery->setChargePercentage(percent);
    return battery;
}

/// Makes a battery at the usual charge, once \a prepare has been called for it.
auto state(const std::function<void(CBatteryStatusWidget*)>& prepare)
{
    return [prepare] {
        CBatteryStatusWidget* battery = makeBattery(usualPercent);
        prepare(battery);
        return battery;
    };
}

void charge(CBatteryStatusWidget* battery)
{
    battery->setBatteryCharging(true);
}

void takeOut(CBatteryStatusWidget* battery)
{
    battery->setBatteryPresent(false);
}

} // namespace

StateGallery stategalleries::battery()
{
    StateGallery gallery{QStringLiteral("CBatteryStatusWidget"), 5, {}};
    for (const int percent : {0, 20, 50, 80, 100})
        gallery.states.append(
            {Texts::tr("%1 %").arg(percent), [percent] { return makeBattery(percent); }});
    gallery.states += QVector<ClassState>{
        {Texts::tr("Charging"), state(charge)},
        {Texts::tr("Absent"), state(takeOut)},
        {Texts::tr("Disabled"), state([](QWidget* widget) { widget->setEnabled(false); })},
        {Texts::tr("Another fill colour"),
         state([](CBatteryStatusWidget* widget) { widget->setFillColor(QColor(0, 140, 60)); })},
        {Texts::tr("Frame width 2"),
         state([](CBatteryStatusWidget* widget) { widget->setFrameWidth(2); })},
        {Texts::tr("Dark palette"), [] { return makeBattery(usualPercent); }, ClassState::Dark},
        {Texts::tr("Dark, charging"), state(charge), ClassState::Dark},
        {Texts::tr("Dark, absent"), state(takeOut), ClassState::Dark},
    };
    return gallery;
}

namespace {

constexpr int length = 130;
constexpr int range = 100;
constexpr int pageStep = 50;

ScrollIndicatorBar* makeBar(Qt::Orientation orientation, int value)
{
    auto* bar = new ScrollIndicatorBar(orientation);
    const QSize vertical(ScrollIndicatorBar::PERPENDICULAR_SIZE, length);
    bar->setFixedSize(orientation == Qt::Vertical ? vertical : vertical.transposed());
    bar->setRange(0, range);
    bar->setPageStep(pageStep);
    bar->setValue(value);
    return bar;
}

/// As an application chooses it for a dark palette.
auto dark(const std::function<ScrollIndicatorBar*()>& make)
{
    return [make] {
        ScrollIndicatorBar* bar = make();
        bar->setPalette(Appearance::indicatorPalette(Appearance::darkPalette()));
        return bar;
    };
}

auto vertical(int value)
{
    return [value] { return makeBar(Qt::Vertical, value); };
}

auto horizontal(int value)
{
    return [value] { return makeBar(Qt::Horizontal, value); };
}

ScrollIndicatorBar* makeHighlighted()
{
    ScrollIndicatorBar* bar = makeBar(Qt::Vertical, range / 2);
    bar->setHighlightBar(true);
    return bar;
}

QWidget* makeLong()
{
    ScrollIndicatorBar* bar = makeBar(Qt::Vertical, range / 2);
    bar->setPageStep(range / 20);
    return bar;
}

QWidget* makeIdle()
{
    ScrollIndicatorBar* bar = makeBar(Qt::Vertical, 0);
    bar->setRange(0, 0);
    return bar;
}

} // namespace

StateGallery stategalleries::scrollIndicator()
{
    return {QStringLiteral("ScrollIndicatorBar"),
            4,
            {
                {Texts::tr("At the top"), vertical(0)},
                {Texts::tr("In the middle"), vertical(range / 2)},
                {Texts::tr("At the bottom"), vertical(range)},
                {Texts::tr("Nothing to scroll"), makeIdle},
                {Texts::tr("Highlighted"), makeHighlighted},
                {Texts::tr("Much to scroll"), makeLong},
                {Texts::tr("Dark palette"), dark(vertical(range / 2)), ClassState::Dark},
                {Texts::tr("Dark, highlighted"), dark(makeHighlighted), ClassState::Dark},
                {Texts::tr("Horizontal, at the start"), horizontal(0)},
                {Texts::tr("Horizontal, in the middle"), horizontal(range / 2)},
                {Texts::tr("Horizontal, at the end"), horizontal(range)},
                {Texts::tr("Right to left, near the start"), horizontal(range / 4),
                 ClassState::Light, Qt::RightToLeft},
            }};
}
