#pragma once

#include "ui/CBatteryStatusWidget.h"

#include <QAccessible>

namespace ui {

/// A battery as a read-only progress bar from 0 to 100, described as charging or absent.
class Q_DECL_HIDDEN CBatteryStatusWidget::AccessibleBattery
{
public:
    static QAccessibleInterface* make(CBatteryStatusWidget* battery);

private:
    static int charge(const QWidget& battery);
    static QString condition(const QWidget& battery);
    static QString text(const QWidget& battery, QAccessible::Text kind);
};

} // namespace ui
