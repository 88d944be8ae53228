#include "HiddenValues.h"

#include <BreadCrumbsWidget.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/ScrollIndicatorBar.h>

#include <QColor>

#include <functional>

using ui::CBatteryStatusWidget;
using ui::CRoundedFrame;
using ui::FileBrowserWidget;
using ui::widgets::ScrollIndicatorBar;

namespace {

struct HiddenValue
{
    const QMetaObject* owner;
    QByteArray name;
    QVariant initial;
    std::function<void(QObject*, const QVariant&)> apply;
    EnumEditor::Choices choices;
};

/// Calls \a setter, which takes \a Argument, with a value.
template <typename Owner, typename Argument, typename Parameter>
HiddenValue entry(const char* name, const Argument& initial, void (Owner::*setter)(Parameter),
                  const EnumEditor::Choices& choices = {})
{
    return {&Owner::staticMetaObject, name, QVariant::fromValue(initial),
            [setter](QObject* object, const QVariant& value) {
                (static_cast<Owner*>(object)->*setter)(value.value<Argument>());
            },
            choices};
}

QVector<HiddenValue> makeTable()
{
    const EnumEditor::Choices modes = {
        {QStringLiteral("NoSelection"), FileBrowserWidget::NoSelection},
        {QStringLiteral("SingleSelection"), FileBrowserWidget::SingleSelection},
        {QStringLiteral("MultiSelection"), FileBrowserWidget::MultiSelection}};
    const HiddenValue mode{&FileBrowserWidget::staticMetaObject, "selectionMode",
                           int(FileBrowserWidget::SingleSelection),
                           [](QObject* object, const QVariant& value) {
                               static_cast<FileBrowserWidget*>(object)->setSelectionMode(
                                   FileBrowserWidget::SelectionMode(value.toInt()));
                           },
                           modes};
    return {
        entry("chargePercentage", 0, &CBatteryStatusWidget::setChargePercentage),
        entry("batteryPresent", true, &CBatteryStatusWidget::setBatteryPresent),
        entry("batteryCharging", false, &CBatteryStatusWidget::setBatteryCharging),
        entry("frameWidth", 4, &CBatteryStatusWidget::setFrameWidth),
        entry("fillColor", QColor(Qt::blue), &CBatteryStatusWidget::setFillColor),
        entry("fillContents", false, &CRoundedFrame::enableFillContents),
        entry("widgetMask", false, &CRoundedFrame::enableWidgetMask),
        entry("highlightBar", false, &ScrollIndicatorBar::setHighlightBar),
        entry("rootPath", QString(), &BreadCrumbsWidget::setRootPath),
        entry("directory", QString(), &BreadCrumbsWidget::changeDir),
        entry("allowedDirs", QStringList(), &FileBrowserWidget::setAllowedDirs),
        entry("filters", QStringList(), &FileBrowserWidget::setFilters),
        mode,
    };
}

const QVector<HiddenValue>& table()
{
    static const QVector<HiddenValue> values = makeTable();
    return values;
}

const HiddenValue* find(const QObject& object, const QByteArray& name)
{
    for (const HiddenValue& candidate : table()) {
        if (candidate.name == name && object.metaObject()->inherits(candidate.owner))
            return &candidate;
    }
    return nullptr;
}

/// Of the dynamic property that remembers a value; Qt's own prefix keeps it out of the lists of
/// them.
QByteArray memory(const QByteArray& name)
{
    return "_q_gallery_" + name;
}

} // namespace

QVector<QByteArray> hiddenvalues::names(const QMetaObject& declaring)
{
    QVector<QByteArray> names;
    for (const HiddenValue& candidate : table()) {
        if (candidate.owner == &declaring)
            names.append(candidate.name);
    }
    return names;
}

bool hiddenvalues::has(const QObject& object, const QByteArray& name)
{
    return find(object, name);
}

QVariant hiddenvalues::value(const QObject& object, const QByteArray& name)
{
    const HiddenValue* hidden = find(object, name);
    if (!hidden)
        return {};
    const QVariant remembered = object.property(memory(name).constData());
    return remembered.isValid() ? remembered : hidden->initial;
}

void hiddenvalues::set(QObject* object, const QByteArray& name, const QVariant& value)
{
    const HiddenValue* hidden = find(*object, name);
    if (!hidden)
        return;
    object->setProperty(memory(name).constData(), value);
    hidden->apply(object, value);
}

EnumEditor::Choices hiddenvalues::choices(const QObject& object, const QByteArray& name)
{
    const HiddenValue* hidden = find(object, name);
    return hidden ? hidden->choices : EnumEditor::Choices();
}
