#pragma once

#include <QString>
#include <QVector>

class GalleryPage;
QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// How the gallery lists and makes a page.
struct PageEntry
{
    QString id; ///< File name stem of its screenshots.
    QString title; ///< Name in the list of pages.
    GalleryPage* (*create)(QWidget* parent);
};

/// Every page of the gallery, in the order of its list.
QVector<PageEntry> allPages();
