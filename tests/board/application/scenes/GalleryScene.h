#pragma once

#include <pages/Pages.h>

#include <QWidget>

/// The gallery, as its own program shows it.
class GalleryScene : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList pages READ pages)
    Q_PROPERTY(QStringList titles READ titles)

public:
    GalleryScene();

    /// What the gallery's program calls its pages, in the order of its list.
    QStringList pages() const;
    /// What its list calls them.
    QStringList titles() const;

private:
    QVector<PageEntry> m_entries;
};
