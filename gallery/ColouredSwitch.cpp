#include "ColouredSwitch.h"

#include <Switch.h>

Switch* makeColouredSwitch(const QString& text, const QColor& accent, bool on)
{
    auto* control = new Switch(text, accent);
    control->setThumbOffBrush(QColor(250, 250, 250));
    control->setTrackOffBrush(Qt::gray);
    control->setTrackOffOpacity(0.6);
    control->setThumbDisabled(QColor(190, 190, 190));
    control->setTrackDisabled(Qt::gray);
    control->setTrackDisabledOpacity(0.3);
    control->setChecked(on); // after the colours, which show those of the off state at first
    return control;
}
