#include "SampleWidget.h"

#include <QBoxLayout>
#include <QPushButton>

namespace test {

SampleWidget::SampleWidget(QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(120, 60);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Highlight);
}

int SampleWidget::level() const
{
    return m_level;
}

void SampleWidget::setLevel(int level)
{
    m_level = qBound(0, level, 100);
    update();
}

double SampleWidget::fraction() const
{
    return m_fraction;
}

void SampleWidget::setFraction(double fraction)
{
    if (fraction >= 0.0 && fraction <= 1.0)
        m_fraction = fraction;
}

SampleWidget::Sides SampleWidget::sides() const
{
    return m_sides;
}

void SampleWidget::setSides(Sides sides)
{
    m_sides = sides;
}

QObject* SampleWidget::companion() const
{
    return nullptr;
}

int SampleWidget::answer() const
{
    return 42;
}

void SampleWidget::setSecret(int) { }

SamplePage::SamplePage(QWidget* parent)
    : GalleryPage(parent)
{
    auto* column = new QVBoxLayout(this);
    for (const QString& name : {QStringLiteral("first"), QStringLiteral("second")}) {
        auto* sample = new SampleWidget;
        sample->setObjectName(name);
        column->addWidget(sample);
        addDemoWidget(sample, name);
    }
    auto* inner = new QPushButton(QStringLiteral("inner"), demoWidgets().constFirst().widget);
    inner->setObjectName(QStringLiteral("inner"));
    inner->move(10, 10);
    auto* button = new QPushButton(QStringLiteral("other"));
    button->setObjectName(QStringLiteral("other"));
    column->addWidget(button);
}

EmptyPage::EmptyPage(QWidget* parent)
    : GalleryPage(parent)
{
}

} // namespace test
