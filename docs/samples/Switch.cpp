#include "Samples.h"

#include <Switch.h>

void samples::switchControl(QWidget* window)
{
    //! [Switch]
    auto* title = new Switch(QObject::tr("Show the title"), QColor(Qt::darkGreen), window);
    title->setThumbOffBrush(Qt::white);
    title->setChecked(true); // after the colours
    QObject::connect(title, &QAbstractButton::toggled, window, [window](bool on) {
        window->setWindowTitle(on ? QObject::tr("Kitchen") : QString());
    });
    //! [Switch]
}
