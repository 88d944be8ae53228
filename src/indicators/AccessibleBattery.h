#pragma once

#include "ui/CBatteryStatusWidget.h"

#include <QAccessibleWidget>

namespace ui {

/// A battery as a read-only progress bar from 0 to 100, described as charging or absent.
class Q_DECL_HIDDEN CBatteryStatusWidget::AccessibleBattery : public QAccessibleWidget,
                                                              public QAccessibleValueInterface
{
public:
    explicit AccessibleBattery(CBatteryStatusWidget* battery);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

private:
    const CBatteryStatusWidget* battery() const;
    QString condition() const;
};

} // namespace ui
