#include "Specimen.h"

#include <QBoxLayout>
#include <QPushButton>

namespace test {

Specimen::Specimen(QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(120, 60);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Highlight);
}

int Specimen::level() const
{
    return m_level;
}

void Specimen::setLevel(int level)
{
    m_level = qBound(0, level, 100);
}

double Specimen::fraction() const
{
    return m_fraction;
}

void Specimen::setFraction(double fraction)
{
    if (fraction >= 0.0 && fraction <= 1.0)
        m_fraction = fraction;
}

Specimen::Sides Specimen::sides() const
{
    return m_sides;
}

void Specimen::setSides(Sides sides)
{
    m_sides = sides;
}

QObject* Specimen::companion() const
{
    return nullptr;
}

int Specimen::answer() const
{
    return 42;
}

void Specimen::setSecret(int) { }

SpecimenPage::SpecimenPage(QWidget* parent)
    : GalleryPage(parent)
{
    auto* column = new QVBoxLayout(this);
    for (const QString& name : {QStringLiteral("first"), QStringLiteral("second")}) {
        auto* specimen = new Specimen;
        specimen->setObjectName(name);
        column->addWidget(specimen);
        addExhibit(specimen, name);
    }
    auto* inner = new QPushButton(QStringLiteral("inner"), exhibits().constFirst().widget);
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
