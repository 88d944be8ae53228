#include "scenes/GalleryScene.h"

#include "scenes/SampleFiles.h"

#include <GalleryWindow.h>
#include <TouchStyle.h>

#include <QApplication>
#include <QVBoxLayout>

GalleryScene::GalleryScene()
    : m_entries(allPages(makeSampleFiles()))
{
    TouchStyle::install();
    QFont font = QApplication::font();
    font.setPointSize(9); // as the gallery finds it, which makes larger ones of it
    QApplication::setFont(font);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new GalleryWindow(m_entries));
}

QStringList GalleryScene::pages() const
{
    QStringList pages;
    for (const PageEntry& entry : m_entries)
        pages.append(entry.id);
    return pages;
}

QStringList GalleryScene::titles() const
{
    QStringList titles;
    for (const PageEntry& entry : m_entries)
        titles.append(entry.title);
    return titles;
}
