#include "NewMachines.h"

#include "SwitchModel.h"

#include <Animator.h>
#include <Switch.h>

namespace soak {

namespace {

constexpr int longestMotion = 3; // milliseconds

/// No colour and a transparent one are the same to whoever draws them.
QVariant plain(const QVariant& value)
{
    if (value.userType() != QMetaType::QColor)
        return value.toInt();
    const QColor color = value.value<QColor>();
    return color.isValid() && color.alpha() > 0 ? color.name(QColor::HexArgb) : QString();
}

/// The state of a switch, its signals, and where its animators come to rest.
class SwitchMachine : public WidgetMachine
{
public:
    explicit SwitchMachine(const std::shared_ptr<Stage>& stage);

    bool expectsWarning(const QString& warning) const override;

protected:
    QWidget* create() override;
    void checkState() override;

private:
    Switch& toggle()
    {
        return static_cast<Switch&>(*widget());
    }
    void addSetters();
    void setAnimation(Values& values);
    void setChecked(bool checked);
    void click();

    SwitchModel m_model;
    bool m_checked = false;
    int m_stateChanges = 0;
};

SwitchMachine::SwitchMachine(const std::shared_ptr<Stage>& stage)
    : WidgetMachine(stage)
{
    add("setChecked", 6, [this](Values& v) { setChecked(v.boolean()); });
    add("click", 3, [this](Values&) { click(); });
    add("toggle", 1, [this](Values&) { setChecked(!toggle().isChecked()); });
    add("refresh", 1, [this](Values&) {
        toggle().refresh();
        m_model.refresh(toggle());
    });
    addSetters();
    addAllUses(*this);
}

void SwitchMachine::addSetters()
{
    add("setColors", 3, [this](Values& v) {
        const auto property = v.oneOf({"thumbOnBrush", "trackOnBrush", "thumbOffBrush",
                                       "trackOffBrush", "thumbDisabled", "trackDisabled"});
        m_model.set(toggle(), property, v.color());
    });
    add("setOpacities", 3, [this](Values& v) {
        const auto property =
            v.oneOf({"thumbOnOpacity", "trackOnOpacity", "thumbOffOpacity", "trackOffOpacity",
                     "thumbDisabledOpacity", "trackDisabledOpacity", "disabledTextOpacity"});
        m_model.set(toggle(), property, v.number());
    });
    add("setHeight", 1, [this](Values& v) { m_model.set(toggle(), "height", v.integer()); });
    add("setIndicatorMargin", 2, [this](Values& v) {
        const QMargins margin{v.integer(), v.integer(), v.integer(), v.integer()};
        m_model.setMargin(toggle(), margin);
    });
    add("setAnimation", 2, [this](Values& v) { setAnimation(v); });
    add("setText", 1, [this](Values& v) { toggle().setText(v.text()); });
    add("rest", 2, [](Values&) { turnEventLoop(); });
}

bool SwitchMachine::expectsWarning(const QString& warning) const
{
    return warning.contains(QLatin1String("cannot set a negative duration"))
        || warning.contains(QLatin1String("The largest allowed size is")) // by the layout
        || WidgetMachine::expectsWarning(warning);
}

QWidget* SwitchMachine::create()
{
    auto* created = new Switch(QStringLiteral("label"));
    for (const char* property :
         {"thumbPosAnimation", "thumbBrushAnimation", "trackBrushAnimation"}) {
        created->setProperty(
            property, QVariant::fromValue(Style::Animation{QEasingCurve::Linear, longestMotion}));
    }
    m_checked = false;
    m_model = SwitchModel();
    m_model.refresh(*created);
    QObject::connect(created, &SelectionControl::stateChanged, created, [this, created](int state) {
        ++m_stateChanges;
        m_checked = created->isChecked();
        compare("reported state", state, int(created->checkState()));
        m_model.rest(*created, m_checked);
    });
    return created;
}

void SwitchMachine::setAnimation(Values& values)
{
    const auto property =
        values.oneOf({"thumbPosAnimation", "thumbBrushAnimation", "trackBrushAnimation"});
    const auto easing = QEasingCurve::Type(values.below(QEasingCurve::OutInBounce));
    const int duration = values.oneOf({-7, 0, 1, longestMotion});
    m_model.set(toggle(), property, QVariant::fromValue(Style::Animation{easing, duration}));
}

void SwitchMachine::setChecked(bool checked)
{
    m_stateChanges = 0;
    toggle().setChecked(checked);
    compare("setChecked()", toggle().isChecked(), checked);
    compare("stateChanged() in setChecked()", m_stateChanges, 1);
}

void SwitchMachine::click()
{
    const bool before = toggle().isChecked();
    const bool enabled = toggle().isEnabled();
    m_stateChanges = 0;
    toggle().click();
    compare("state after click()", toggle().isChecked(), enabled ? !before : before);
    compare("stateChanged() in click()", m_stateChanges, enabled ? 2 : 0);
}

void SwitchMachine::checkState()
{
    compare("checkState()", toggle().checkState(), m_checked ? Qt::Checked : Qt::Unchecked);
    const auto animators = toggle().findChildren<Animator*>();
    compare("animators", animators.size(), 3);
    const QVariantList ends = m_model.ends();
    for (int i = 0; i < animators.size(); ++i) {
        if (ends.at(i).isValid() && animators.at(i)->state() == QAbstractAnimation::Stopped)
            compare("animator at rest", plain(animators.at(i)->currentValue()), plain(ends.at(i)));
    }
}

} // namespace

std::unique_ptr<WidgetMachine> newSwitchMachine(const std::shared_ptr<Stage>& stage)
{
    return std::make_unique<SwitchMachine>(stage);
}

} // namespace soak
