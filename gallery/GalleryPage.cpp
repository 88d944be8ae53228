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

const QList<GalleryPage::Source>& GalleryPage::sources() const
{
    return m_sources;
}

void GalleryPage::addSource(QObject* object, const QString& name)
{
    m_sources.append({object, name});
}
