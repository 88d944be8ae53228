#include "GalleryPage.h"
#include "Pages.h"
#include "properties/HiddenValues.h"
#include "SystemBattery.h"
#include "Touch.h"

#include <Switch.h>
#include <ui/CBatteryStatusWidget.h>

#include <QCoreApplication>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

using ui::CBatteryStatusWidget;

namespace {

constexpr QSize usualSize(44, 80);
constexpr QSize smallSize(26, 46);
constexpr QSize largeSize(76, 128);
constexpr int columnWidth = 52;
constexpr int captionPixelSize = 12;
constexpr int usualPercent = 60;

QLabel* makeCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    QFont font = caption->font();
    font.setPixelSize(captionPixelSize);
    caption->setFont(font);
    caption->setAlignment(Qt::AlignCenter);
    return caption;
}

/// Batteries in their states, frames and sizes, one to play with, and the device's own.
class BatteryPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(BatteryPage)

public:
    /// Shows \a systemBattery among the others, and follows what the kernel reports about it.
    BatteryPage(QWidget* parent, const SystemBattery& systemBattery);

protected:
    void showEvent(QShowEvent* event) override;

private:
    ui::CBatteryStatusWidget* addBattery(QBoxLayout* row, const QString& name, int percent);
    void fillCharges(QBoxLayout* row);
    void fillLooks(QBoxLayout* row);
    void fillSizes(QBoxLayout* row);
    QWidget* makeColumn();
    QWidget* makeControls(ui::CBatteryStatusWidget* battery);
    void readSystemBattery();

    SystemBattery m_systemBattery;
    ui::CBatteryStatusWidget* m_systemWidget = nullptr;
};

BatteryPage::BatteryPage(QWidget* parent, const SystemBattery& systemBattery)
    : GalleryPage(parent)
    , m_systemBattery(systemBattery)
{
    auto* rows = new QVBoxLayout(this);
    for (const auto fill :
         {&BatteryPage::fillCharges, &BatteryPage::fillLooks, &BatteryPage::fillSizes}) {
        auto* row = new QHBoxLayout;
        rows->addLayout(row);
        (this->*fill)(row);
    }
    rows->addStretch();

    // Asking now and then would wake a device that is at rest.
    connect(new PowerSupplyEvents(this), &PowerSupplyEvents::changed, this,
            &BatteryPage::readSystemBattery);
}

CBatteryStatusWidget* BatteryPage::addBattery(QBoxLayout* row, const QString& name, int percent)
{
    auto* battery = new CBatteryStatusWidget(this);
    battery->setFixedSize(usualSize);
    hiddenvalues::set(battery, "chargePercentage", percent);
    addDemoWidget(battery, name);

    auto* cell = new QVBoxLayout;
    cell->setSpacing(2);
    cell->addStretch();
    cell->addWidget(battery, 0, Qt::AlignHCenter);
    cell->addWidget(makeCaption(name));
    row->addLayout(cell);
    return battery;
}

void BatteryPage::fillCharges(QBoxLayout* row)
{
    for (const int percent : {0, 10, 50, 80, 100})
        addBattery(row, tr("%1 %").arg(percent), percent);
    hiddenvalues::set(addBattery(row, tr("Absent"), usualPercent), "batteryPresent", false);
    m_systemWidget = addBattery(row, tr("This device"), 0);
    hiddenvalues::set(m_systemWidget, "batteryPresent", false);
}

void BatteryPage::fillLooks(QBoxLayout* row)
{
    hiddenvalues::set(addBattery(row, tr("Charging"), usualPercent), "batteryCharging", true);
    hiddenvalues::set(addBattery(row, tr("Green"), usualPercent), "fillColor", QColor(0, 140, 60));
    hiddenvalues::set(addBattery(row, tr("Red"), 15), "fillColor", QColor(200, 0, 0));
    for (const int frameWidth : {1, 2, 6})
        hiddenvalues::set(addBattery(row, tr("Frame %1").arg(frameWidth), usualPercent),
                          "frameWidth", frameWidth);
}

void BatteryPage::fillSizes(QBoxLayout* row)
{
    addBattery(row, tr("Small"), usualPercent)->setFixedSize(smallSize);
    row->addWidget(makeColumn());
    CBatteryStatusWidget* const large = addBattery(row, tr("Try me"), usualPercent);
    large->setFixedSize(largeSize);
    row->addWidget(makeControls(large), 1);
}

QWidget* BatteryPage::makeColumn()
{
    auto* battery = new CBatteryStatusWidget;
    hiddenvalues::set(battery, "chargePercentage", usualPercent);
    const QString name = tr("Height for width");
    addDemoWidget(battery, name);

    // The layout asks the battery how high it is as wide as the column.
    auto* column = new QWidget(this);
    column->setFixedWidth(columnWidth);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addStretch();
    layout->addWidget(battery);
    QLabel* const caption = makeCaption(name);
    caption->setWordWrap(true);
    layout->addWidget(caption);
    return column;
}

QWidget* BatteryPage::makeControls(CBatteryStatusWidget* battery)
{
    QSlider* charge = touch::makeSlider();
    charge->setRange(0, 100);
    charge->setValue(usualPercent);
    connect(charge, &QSlider::valueChanged, battery,
            [battery](int percent) { hiddenvalues::set(battery, "chargePercentage", percent); });

    Switch* present = touch::makeSwitch(tr("Present"));
    present->setChecked(true);
    connect(present, &Switch::toggled, battery,
            [battery](bool on) { hiddenvalues::set(battery, "batteryPresent", on); });

    Switch* charging = touch::makeSwitch(tr("Charging"));
    connect(charging, &Switch::toggled, battery,
            [battery](bool on) { hiddenvalues::set(battery, "batteryCharging", on); });

    auto* controls = new QWidget(this);
    auto* layout = new QVBoxLayout(controls);
    layout->addStretch();
    layout->addWidget(charge);
    layout->addWidget(present, 0, Qt::AlignLeft);
    layout->addWidget(charging, 0, Qt::AlignLeft);
    return controls;
}

void BatteryPage::showEvent(QShowEvent* event)
{
    GalleryPage::showEvent(event);
    readSystemBattery();
}

void BatteryPage::readSystemBattery()
{
    const BatteryReading reading = m_systemBattery.read();
    hiddenvalues::set(m_systemWidget, "batteryPresent", reading.present);
    hiddenvalues::set(m_systemWidget, "batteryCharging", reading.charging);
    hiddenvalues::set(m_systemWidget, "chargePercentage", reading.percent);
}

} // namespace

GalleryPage* makeBatteryPage(QWidget* parent, const SystemBattery& systemBattery)
{
    return new BatteryPage(parent, systemBattery);
}
