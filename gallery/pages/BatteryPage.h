#pragma once

#include "GalleryPage.h"
#include "MachineBattery.h"

#include <QBasicTimer>

QT_BEGIN_NAMESPACE
class QBoxLayout;
QT_END_NAMESPACE

namespace ui {
class CBatteryStatusWidget;
}

/// Batteries in their states, frames and sizes, one to play with, and the machine's own.
class BatteryPage : public GalleryPage
{
    Q_OBJECT

public:
    /// Shows \a machineBattery among the others, and follows it while the page is visible.
    explicit BatteryPage(QWidget* parent = nullptr,
                         const MachineBattery& machineBattery = MachineBattery());

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    ui::CBatteryStatusWidget* addBattery(QBoxLayout* row, const QString& name, int percent);
    void fillCharges(QBoxLayout* row);
    void fillLooks(QBoxLayout* row);
    void fillSizes(QBoxLayout* row);
    QWidget* makeColumn();
    QWidget* makeControls(ui::CBatteryStatusWidget* battery);
    void readMachineBattery();

    MachineBattery m_machineBattery;
    ui::CBatteryStatusWidget* m_machineWidget = nullptr;
    QBasicTimer m_timer;
};
