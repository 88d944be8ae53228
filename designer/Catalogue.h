#pragma once

#include "WidgetPlugin.h"

#include <QVector>

/// Every widget that Designer offers, in the order of the widget box.
QVector<WidgetDescription> widgetCatalogue();
