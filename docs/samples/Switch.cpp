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

void samples::styledSwitch(QWidget* window)
{
    //! [style sheet]
    window->setStyleSheet(
        "Switch { qproperty-thumbOnBrush: #0b6e99; qproperty-trackOnBrush: #0b6e99; }");

    auto* wireless = new Switch(QObject::tr("Wi-Fi"), window);
    wireless->ensurePolished(); // takes the colours of the style sheet now...
    wireless->setChecked(true); // ...and the state in these colours
    //! [style sheet]
}

void samples::changeStyleSheet(QWidget* window, const QString& styleSheet)
{
    //! [new style sheet]
    window->setStyleSheet(styleSheet);
    const auto switches = window->findChildren<Switch*>();
    for (Switch* each : switches)
        each->toggle(each->checkState()); // the state again, without a signal
    //! [new style sheet]
}
