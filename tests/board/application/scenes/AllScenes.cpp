#include "AllScenes.h"

#include "scenes/BatteryScene.h"
#include "scenes/BrowserScene.h"
#include "scenes/EdgesScene.h"
#include "scenes/FieldsScene.h"
#include "scenes/FramesScene.h"
#include "scenes/GalleryScene.h"
#include "scenes/IndicatorScene.h"
#include "scenes/LoopScene.h"
#include "scenes/SettingsScene.h"
#include "scenes/SwitchesScene.h"

#include <QHash>
#include <QString>

#include <functional>

QWidget* makeScene(const QString& name, Journal& journal)
{
    static const QHash<QString, std::function<QWidget*(Journal&)>> scenes = {
        {QStringLiteral("batteries"), [](Journal&) { return new BatteryScene; }},
        {QStringLiteral("browser"), [](Journal& log) { return new BrowserScene(log); }},
        {QStringLiteral("edges"), [](Journal&) { return new EdgesScene; }},
        {QStringLiteral("fields"), [](Journal& log) { return new FieldsScene(log); }},
        {QStringLiteral("frames"), [](Journal& log) { return new FramesScene(log); }},
        {QStringLiteral("gallery"), [](Journal&) { return new GalleryScene; }},
        {QStringLiteral("indicator"), [](Journal& log) { return new IndicatorScene(log); }},
        {QStringLiteral("loop"), [](Journal& log) { return new LoopScene(log); }},
        {QStringLiteral("settings"), [](Journal&) { return new SettingsScene; }},
        {QStringLiteral("switches"), [](Journal& log) { return new SwitchesScene(log); }},
    };
    const auto make = scenes.value(name);
    return make ? make(journal) : nullptr;
}
