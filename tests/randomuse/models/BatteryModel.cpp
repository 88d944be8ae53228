#include "Models.h"

#include <ui/CBatteryStatusWidget.h>

#include <QAccessible>

using ui::CBatteryStatusWidget;

namespace test {

namespace {

/// What a battery tells assistive technology, and geometry that grows with what it is computed
/// from.
class BatteryModel : public WidgetModel
{
public:
    explicit BatteryModel(const std::shared_ptr<TestWindows>& windows);

protected:
    QWidget* create() override;
    void checkState() override;

private:
    CBatteryStatusWidget& battery()
    {
        return static_cast<CBatteryStatusWidget&>(*widget());
    }
    void checkGeometry(Values& values);
    QString condition() const;

    int m_charge = 0;
    bool m_present = true;
    bool m_charging = false;
};

BatteryModel::BatteryModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    add("setChargePercentage", 6, [this](Values& v) {
        const int charge = v.integer();
        m_charge = qBound(0, charge, 100);
        battery().setChargePercentage(charge);
    });
    add("setBatteryPresent", 3, [this](Values& v) {
        m_present = v.boolean();
        battery().setBatteryPresent(m_present);
    });
    add("setBatteryCharging", 3, [this](Values& v) {
        m_charging = v.boolean();
        battery().setBatteryCharging(m_charging);
    });
    add("setFrameWidth", 2, [this](Values& v) { battery().setFrameWidth(v.integer()); });
    add("setFillColor", 2, [this](Values& v) { battery().setFillColor(v.color()); });
    add("setContentsMargins", 1, [this](Values& v) {
        const int margin = v.oneOf({-5, 0, 3, 30, 30000});
        battery().setContentsMargins(margin, margin, margin, 0);
    });
    add("geometry", 2, [this](Values& v) { checkGeometry(v); });
    addAllCommands(*this);
}

QWidget* BatteryModel::create()
{
    m_charge = 0;
    m_present = true;
    m_charging = false;
    return new CBatteryStatusWidget;
}

void BatteryModel::checkGeometry(Values& values)
{
    const int low = values.integer();
    const int high = qMax(low, values.integer());
    expect(battery().heightForWidth(low) <= battery().heightForWidth(high), "heights grow");
    expect(battery().widthForHeight(low) <= battery().widthForHeight(high), "widths grow");
    expect(battery().getTotalHeight(low, low) <= battery().getTotalHeight(high, high),
           "total heights grow");
    expect(battery().getTopRectHeight(battery().getTopRectWidth(low))
               <= battery().getTopRectHeight(battery().getTopRectWidth(high)),
           "terminals grow");
}

QString BatteryModel::condition() const
{
    if (!m_present)
        return QStringLiteral("absent");
    return m_charging ? QStringLiteral("charging") : QString();
}

void BatteryModel::checkState()
{
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&battery());
    expect(told && told->valueInterface(), "a battery tells its charge");
    if (!told || !told->valueInterface())
        return;
    compare("charge", told->valueInterface()->currentValue().toInt(), m_charge);
    compare("condition", told->text(QAccessible::Description), condition());
}

} // namespace

std::unique_ptr<WidgetModel> newBatteryModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<BatteryModel>(windows);
}

} // namespace test
