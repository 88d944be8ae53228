#include "Switch.h"

template <typename T>
void Switch::assign(T& field, const T& value)
{
    if (field == value)
        return;
    field = value;
    refresh();
}

int Switch::indicatorHeight() const
{
    return m_height;
}

void Switch::setHeight(int height)
{
    assign(m_height, height);
}

QFont Switch::labelFont() const
{
    return m_font;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setFont(QFont font)
{
    assign(m_font, font);
}

QColor Switch::thumbOnBrush() const
{
    return m_thumbOnBrush;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setThumbOnBrush(QColor color)
{
    assign(m_thumbOnBrush, color);
}

double Switch::thumbOnOpacity() const
{
    return m_thumbOnOpacity;
}

void Switch::setThumbOnOpacity(double opacity)
{
    assign(m_thumbOnOpacity, opacity);
}

QColor Switch::trackOnBrush() const
{
    return m_trackOnBrush;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setTrackOnBrush(QColor color)
{
    assign(m_trackOnBrush, color);
}

double Switch::trackOnOpacity() const
{
    return m_trackOnOpacity;
}

void Switch::setTrackOnOpacity(double opacity)
{
    assign(m_trackOnOpacity, opacity);
}

QColor Switch::thumbOffBrush() const
{
    return m_thumbOffBrush;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setThumbOffBrush(QColor color)
{
    assign(m_thumbOffBrush, color);
}

double Switch::thumbOffOpacity() const
{
    return m_thumbOffOpacity;
}

void Switch::setThumbOffOpacity(double opacity)
{
    assign(m_thumbOffOpacity, opacity);
}

QColor Switch::trackOffBrush() const
{
    return m_trackOffBrush;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setTrackOffBrush(QColor color)
{
    assign(m_trackOffBrush, color);
}

double Switch::trackOffOpacity() const
{
    return m_trackOffOpacity;
}

void Switch::setTrackOffOpacity(double opacity)
{
    assign(m_trackOffOpacity, opacity);
}

QColor Switch::thumbDisabled() const
{
    return m_thumbDisabled;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setThumbDisabled(QColor color)
{
    assign(m_thumbDisabled, color);
}

double Switch::thumbDisabledOpacity() const
{
    return m_thumbDisabledOpacity;
}

void Switch::setThumbDisabledOpacity(double opacity)
{
    assign(m_thumbDisabledOpacity, opacity);
}

QColor Switch::trackDisabled() const
{
    return m_trackDisabled;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setTrackDisabled(QColor color)
{
    assign(m_trackDisabled, color);
}

double Switch::trackDisabledOpacity() const
{
    return m_trackDisabledOpacity;
}

void Switch::setTrackDisabledOpacity(double opacity)
{
    assign(m_trackDisabledOpacity, opacity);
}

QColor Switch::textColor() const
{
    return m_textColor;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the public interface
void Switch::setTextColor(QColor color)
{
    assign(m_textColor, color);
}

double Switch::disabledTextOpacity() const
{
    return m_disabledTextOpacity;
}

void Switch::setDisabledTextOpacity(double opacity)
{
    assign(m_disabledTextOpacity, opacity);
}

Style::Animation Switch::thumbBrushAnimation() const
{
    return m_thumbBrushAnimation;
}

void Switch::setThumbBrushAnimation(Style::Animation animation)
{
    assign(m_thumbBrushAnimation, animation);
}

Style::Animation Switch::trackBrushAnimation() const
{
    return m_trackBrushAnimation;
}

void Switch::setTrackBrushAnimation(Style::Animation animation)
{
    assign(m_trackBrushAnimation, animation);
}

Style::Animation Switch::thumbPosAnimation() const
{
    return m_thumbPosAnimation;
}

void Switch::setThumbPosAnimation(Style::Animation animation)
{
    assign(m_thumbPosAnimation, animation);
}

void Switch::setIndicatorMargin(QMargins margin)
{
    assign(m_indicatorMargin, margin);
}
