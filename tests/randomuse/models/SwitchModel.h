#pragma once

#include <QMargins>
#include <QVariantList>

class Switch;

namespace soak {

/// Where the animators of a switch must come to rest.
class SwitchModel
{
public:
    /// Sets a property of the switch; one that changes puts the colours of the off state in place.
    void set(Switch& toggle, const char* property, const QVariant& value);
    void setMargin(Switch& toggle, const QMargins& margin);

    /// The switch has been told to refresh.
    void refresh(const Switch& toggle);
    /// The state has been set.
    void rest(const Switch& toggle, bool on);

    /// Of the thumb's colour, the track's colour and the thumb's position, invalid if it may be any.
    QVariantList ends() const;

private:
    QMargins m_margin{8, 8, 8, 8};
    QVariant m_thumb;
    QVariant m_track;
    QVariant m_position;
};

} // namespace soak
