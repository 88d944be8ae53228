#include "Models.h"

#include <Animator.h>
#include <Switch.h>

namespace test {

namespace {

constexpr int longestMotion = 3; // milliseconds

/// A colour with an opacity as its alpha; none at all if that is no fraction.
QColor withOpacity(const QColor& color, double opacity)
{
    if (!(opacity >= 0 && opacity <= 1))
        return {};
    return {color.red(), color.green(), color.blue(), qRound(opacity * 255)};
}

int bounded(int length)
{
    return qBound(-QWIDGETSIZE_MAX, length, QWIDGETSIZE_MAX);
}

/// Where the animators of a switch must end.
class AnimatorEndStates
{
public:
    /// Sets a property of the switch; one that changes puts the colours of the off state in place.
    void set(Switch& toggle, const char* property, const QVariant& value);
    void setMargin(Switch& toggle, const QMargins& margin);

    /// The switch has been told to refresh.
    void refresh(const Switch& toggle);
    /// The state has been set.
    void checkStateSet(const Switch& toggle, bool on);

    /// Of the thumb's colour, the track's colour and the thumb's position, invalid if it may be
    /// any.
    QVariantList all() const;

private:
    QMargins m_margin{8, 8, 8, 8};
    QVariant m_thumb;
    QVariant m_track;
    QVariant m_position;
};

void AnimatorEndStates::set(Switch& toggle, const char* property, const QVariant& value)
{
    const QVariant before = toggle.property(property);
    toggle.setProperty(property, value);
    const bool animation = value.userType() == qMetaTypeId<Style::Animation>();
    const bool same = animation
        ? before.value<Style::Animation>() == value.value<Style::Animation>()
        : before == value;
    if (same)
        return;
    refresh(toggle);
    // Qt tells an animation's progress from the time that it ran: another duration moves the thumb.
    if (qstrcmp(property, "thumbPosAnimation") == 0)
        m_position = QVariant();
}

void AnimatorEndStates::setMargin(Switch& toggle, const QMargins& margin)
{
    toggle.setIndicatorMargin(margin);
    if (m_margin != margin)
        refresh(toggle);
    m_margin = margin;
}

void AnimatorEndStates::refresh(const Switch& toggle)
{
    m_thumb = withOpacity(toggle.thumbOffBrush(), toggle.thumbOffOpacity());
    m_track = withOpacity(toggle.trackOffBrush(), toggle.trackOffOpacity());
}

void AnimatorEndStates::checkStateSet(const Switch& toggle, bool on)
{
    refresh(toggle);
    m_position = 0;
    if (!on)
        return;
    m_thumb = withOpacity(toggle.thumbOnBrush(), toggle.thumbOnOpacity());
    m_track = withOpacity(toggle.trackOnBrush(), toggle.trackOnOpacity());
    m_position = 2 * (bounded(m_margin.left()) + bounded(m_margin.right()) + 2);
}

QVariantList AnimatorEndStates::all() const
{
    return {m_thumb, m_track, m_position};
}

/// No colour and a transparent one are the same to whoever draws them.
QVariant plain(const QVariant& value)
{
    if (value.userType() != QMetaType::QColor)
        return value.toInt();
    const QColor color = value.value<QColor>();
    return color.isValid() && color.alpha() > 0 ? color.name(QColor::HexArgb) : QString();
}

/// The state of a switch, its signals, and where its animators end.
class SwitchModel : public WidgetModel
{
public:
    explicit SwitchModel(const std::shared_ptr<TestWindows>& windows);

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

    AnimatorEndStates m_ends;
    bool m_checked = false;
    int m_stateChanges = 0;
};

SwitchModel::SwitchModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    add("setChecked", 6, [this](Values& v) { setChecked(v.boolean()); });
    add("click", 3, [this](Values&) { click(); });
    add("toggle", 1, [this](Values&) { setChecked(!toggle().isChecked()); });
    add("refresh", 1, [this](Values&) {
        toggle().refresh();
        m_ends.refresh(toggle());
    });
    addSetters();
    addAllCommands(*this);
}

void SwitchModel::addSetters()
{
    add("setColors", 3, [this](Values& v) {
        const auto property = v.oneOf({"thumbOnBrush", "trackOnBrush", "thumbOffBrush",
                                       "trackOffBrush", "thumbDisabled", "trackDisabled"});
        m_ends.set(toggle(), property, v.color());
    });
    add("setOpacities", 3, [this](Values& v) {
        const auto property =
            v.oneOf({"thumbOnOpacity", "trackOnOpacity", "thumbOffOpacity", "trackOffOpacity",
                     "thumbDisabledOpacity", "trackDisabledOpacity", "disabledTextOpacity"});
        m_ends.set(toggle(), property, v.number());
    });
    add("setHeight", 1, [this](Values& v) { m_ends.set(toggle(), "height", v.integer()); });
    add("setIndicatorMargin", 2, [this](Values& v) {
        const QMargins margin{v.integer(), v.integer(), v.integer(), v.integer()};
        m_ends.setMargin(toggle(), margin);
    });
    add("setAnimation", 2, [this](Values& v) { setAnimation(v); });
    add("setText", 1, [this](Values& v) { toggle().setText(v.text()); });
    add("letAnimationsRun", 2, [](Values&) { processEvents(); });
}

bool SwitchModel::expectsWarning(const QString& warning) const
{
    return warning.contains(QLatin1String("cannot set a negative duration"))
        || warning.contains(QLatin1String("The largest allowed size is")) // by the layout
        || WidgetModel::expectsWarning(warning);
}

QWidget* SwitchModel::create()
{
    auto* created = new Switch(QStringLiteral("label"));
    for (const char* property :
         {"thumbPosAnimation", "thumbBrushAnimation", "trackBrushAnimation"}) {
        created->setProperty(
            property, QVariant::fromValue(Style::Animation{QEasingCurve::Linear, longestMotion}));
    }
    m_checked = false;
    m_ends = AnimatorEndStates();
    m_ends.refresh(*created);
    QObject::connect(created, &SelectionControl::stateChanged, created, [this, created](int state) {
        ++m_stateChanges;
        m_checked = created->isChecked();
        compare("reported state", state, int(created->checkState()));
        m_ends.checkStateSet(*created, m_checked);
    });
    return created;
}

void SwitchModel::setAnimation(Values& values)
{
    const auto property =
        values.oneOf({"thumbPosAnimation", "thumbBrushAnimation", "trackBrushAnimation"});
    const auto easing = QEasingCurve::Type(values.below(QEasingCurve::OutInBounce));
    const int duration = values.oneOf({-7, 0, 1, longestMotion});
    m_ends.set(toggle(), property, QVariant::fromValue(Style::Animation{easing, duration}));
}

void SwitchModel::setChecked(bool checked)
{
    m_stateChanges = 0;
    toggle().setChecked(checked);
    compare("setChecked()", toggle().isChecked(), checked);
    compare("stateChanged() in setChecked()", m_stateChanges, 1);
}

void SwitchModel::click()
{
    const bool before = toggle().isChecked();
    const bool enabled = toggle().isEnabled();
    m_stateChanges = 0;
    toggle().click();
    compare("state after click()", toggle().isChecked(), enabled ? !before : before);
    compare("stateChanged() in click()", m_stateChanges, enabled ? 2 : 0);
}

void SwitchModel::checkState()
{
    compare("checkState()", toggle().checkState(), m_checked ? Qt::Checked : Qt::Unchecked);
    const auto animators = toggle().findChildren<Animator*>();
    compare("animators", animators.size(), 3);
    const QVariantList ends = m_ends.all();
    for (int i = 0; i < animators.size(); ++i) {
        if (ends.at(i).isValid() && animators.at(i)->state() == QAbstractAnimation::Stopped)
            compare("end state of an animator", plain(animators.at(i)->currentValue()),
                    plain(ends.at(i)));
    }
}

} // namespace

std::unique_ptr<WidgetModel> newSwitchModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<SwitchModel>(windows);
}

} // namespace test
