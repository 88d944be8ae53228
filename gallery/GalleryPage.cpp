#include "GalleryPage.h"

GalleryPage::GalleryPage(QWidget* parent)
    : QWidget(parent)
{
}

const QList<GalleryPage::DemoWidget>& GalleryPage::demoWidgets() const
{
    return m_demoWidgets;
}

bool GalleryPage::isReady() const
{
    return true;
}

void GalleryPage::addDemoWidget(QWidget* widget, const QString& name)
{
    m_demoWidgets.append({widget, name});
}
