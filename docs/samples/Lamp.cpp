#include "Lamp.h"

#include "Samples.h"

#include <QPainter>

Lamp::Lamp(QWidget* parent)
    : SelectionControl(parent)
{
}

//! [SelectionControl]
void Lamp::toggle(Qt::CheckState)
{
    update();
}

QSize Lamp::sizeHint() const
{
    return {48, 48};
}

void Lamp::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);
    painter.setBrush(checkState() == Qt::Checked ? Qt::yellow : Qt::gray);
    painter.drawEllipse(rect().adjusted(1, 1, -1, -1));
}
//! [SelectionControl]

void samples::selectionControl(QWidget* window)
{
    auto* lamp = new Lamp(window);
    lamp->setChecked(true);
}
