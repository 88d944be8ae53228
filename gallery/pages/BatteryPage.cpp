#include "BatteryPage.h"

#include "ui/CBatteryStatusWidget.h"

#include <QCheckBox>
#include <QLabel>
#include <QSlider>
#include <QTimerEvent>
#include <QVBoxLayout>

using ui::CBatteryStatusWidget;

namespace {

constexpr QSize usualSize(44, 80);
constexpr QSize smallSize(26, 46);
constexpr QSize largeSize(76, 128);
constexpr int columnWidth = 52;
constexpr int captionPixelSize = 12;
constexpr int usualPercent = 60;
/// Often enough to see the plug pulled, in milliseconds.
constexpr int readingInterval = 2000;

QLabel* makeCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    QFont font = caption->font();
    font.setPixelSize(captionPixelSize);
    caption->setFont(font);
    caption->setAlignment(Qt::AlignCenter);
    return caption;
}

} // namespace

BatteryPage::BatteryPage(QWidget* parent, const MachineBattery& machineBattery)
    : GalleryPage(parent)
    , m_machineBattery(machineBattery)
{
    auto* rows = new QVBoxLayout(this);
    for (const auto fill :
         {&BatteryPage::fillCharges, &BatteryPage::fillLooks, &BatteryPage::fillSizes}) {
        auto* row = new QHBoxLayout;
        rows->addLayout(row);
        (this->*fill)(row);
    }
    rows->addStretch();
}

CBatteryStatusWidget* BatteryPage::addBattery(QBoxLayout* row, const QString& name, int percent)
{
    auto* battery = new CBatteryStatusWidget(this);
    battery->setFixedSize(usualSize);
    battery->setChargePercentage(percent);
    addExhibit(battery, name);

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
    addBattery(row, tr("Absent"), usualPercent)->setBatteryPresent(false);
    m_machineWidget = addBattery(row, tr("This machine"), 0);
    m_machineWidget->setBatteryPresent(false);
}

void BatteryPage::fillLooks(QBoxLayout* row)
{
    addBattery(row, tr("Charging"), usualPercent)->setBatteryCharging(true);
    addBattery(row, tr("Green"), usualPercent)->setFillColor(QColor(0, 140, 60));
    addBattery(row, tr("Red"), 15)->setFillColor(QColor(200, 0, 0));
    for (const int frameWidth : {1, 2, 6})
        addBattery(row, tr("Frame %1").arg(frameWidth), usualPercent)->setFrameWidth(frameWidth);
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
    battery->setChargePercentage(usualPercent);
    const QString name = tr("Height for width");
    addExhibit(battery, name);

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
    auto* charge = new QSlider(Qt::Horizontal);
    charge->setRange(0, 100);
    charge->setValue(usualPercent);
    connect(charge, &QSlider::valueChanged, battery, &CBatteryStatusWidget::setChargePercentage);

    auto* present = new QCheckBox(tr("Present"));
    present->setChecked(true);
    connect(present, &QCheckBox::toggled, battery, &CBatteryStatusWidget::setBatteryPresent);

    auto* charging = new QCheckBox(tr("Charging"));
    connect(charging, &QCheckBox::toggled, battery, &CBatteryStatusWidget::setBatteryCharging);

    auto* controls = new QWidget(this);
    auto* layout = new QVBoxLayout(controls);
    layout->addStretch();
    layout->addWidget(charge);
    layout->addWidget(present);
    layout->addWidget(charging);
    return controls;
}

void BatteryPage::showEvent(QShowEvent* event)
{
    GalleryPage::showEvent(event);
    readMachineBattery();
    m_timer.start(readingInterval, this);
}

void BatteryPage::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    GalleryPage::hideEvent(event);
}

void BatteryPage::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId())
        readMachineBattery();
    else
        GalleryPage::timerEvent(event);
}

void BatteryPage::readMachineBattery()
{
    const BatteryReading reading = m_machineBattery.read();
    m_machineWidget->setBatteryPresent(reading.present);
    m_machineWidget->setBatteryCharging(reading.charging);
    m_machineWidget->setChargePercentage(reading.percent);
}
