#pragma once

#include "Model.h"
#include "WidgetModel.h"

#include <QStringList>

#include <memory>

namespace test {

/// One for each widget, and "together" for all of them in one window.
QStringList modelNames();

/// The classes of the library that no model uses.
QString classesWithoutModel();

/// Null if there is none of that name.
std::unique_ptr<Model> newModel(const QString& name);

std::unique_ptr<WidgetModel> newFrameModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newGridButtonModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newIndicatorModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newBatteryModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newSwitchModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newLineEditModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newKeypadFieldModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newCrumbsModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<WidgetModel> newBrowserModel(const std::shared_ptr<TestWindows>& windows);
std::unique_ptr<Model> newLoopModel();
/// One that breaks invariants, crashes and warns, to test what looks for such.
std::unique_ptr<Model> newFaultyModel();

} // namespace test
