#include "SwitchModel.h"

#include <QWidget>
#include <Switch.h>

namespace soak {

namespace {

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

} // namespace

void SwitchModel::set(Switch& toggle, const char* property, const QVariant& value)
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

void SwitchModel::setMargin(Switch& toggle, const QMargins& margin)
{
    toggle.setIndicatorMargin(margin);
    if (m_margin != margin)
        refresh(toggle);
    m_margin = margin;
}

void SwitchModel::refresh(const Switch& toggle)
{
    m_thumb = withOpacity(toggle.thumbOffBrush(), toggle.thumbOffOpacity());
    m_track = withOpacity(toggle.trackOffBrush(), toggle.trackOffOpacity());
}

void SwitchModel::rest(const Switch& toggle, bool on)
{
    refresh(toggle);
    m_position = 0;
    if (!on)
        return;
    m_thumb = withOpacity(toggle.thumbOnBrush(), toggle.thumbOnOpacity());
    m_track = withOpacity(toggle.trackOnBrush(), toggle.trackOnOpacity());
    m_position = 2 * (bounded(m_margin.left()) + bounded(m_margin.right()) + 2);
}

QVariantList SwitchModel::ends() const
{
    return {m_thumb, m_track, m_position};
}

} // namespace soak
