#include "GalleryPage.h"

GalleryPage::GalleryPage(QWidget* parent)
    : QWidget(parent)
{
}

const QList<GalleryPage::Exhibit>& GalleryPage::exhibits() const
{
    return m_exhibits;
}

void GalleryPage::addExhibit(QWidget* widget, const QString& name)
{
    m_exhibits.append({widget, name});
}
