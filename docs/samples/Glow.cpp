#include "Glow.h"

#include "Samples.h"

#include <QColor>
#include <QPainter>

//! [Animator]
Glow::Glow(QWidget* parent)
    : QWidget(parent)
    , m_glow(new Animator(this, this))
{
    m_glow->setup(200, QEasingCurve::OutQuad);
    m_glow->setCurrentValue(QColor(Qt::black));
}

void Glow::lightUp()
{
    m_glow->interpolate(QColor(Qt::black), QColor(Qt::yellow));
}

void Glow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_glow->currentValue().value<QColor>());
    painter.drawEllipse(rect().adjusted(1, 1, -1, -1));
}
//! [Animator]

void samples::animator(QWidget* window)
{
    auto* glow = new Glow(window);
    glow->lightUp();
}
