#pragma once

#include "pages/Pages.h"

#include <QString>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

/// Where the reference of the library's classes is.
namespace reference {

/// The page of \a className, its namespaces included, in the file system; empty if there is none.
QString classPage(const QString& className);

/// \a className without its namespaces.
QString shortName(const QString& className);

} // namespace reference

/// A page below links to the reference of its classes.
class PageView : public QWidget
{
    Q_OBJECT

public:
    /// Makes the page of \a entry.
    explicit PageView(const PageEntry& entry, QWidget* parent = nullptr);

    GalleryPage* page() const;

    /// That of a picture of the page: as wide as in a window of 800 x 480 without a tool, and as
    /// high as the page wants to be.
    QSize pictureSize() const;

private:
    QWidget* makeLinks(const QStringList& classes);
    void openReference(const QString& className);

    GalleryPage* m_page;
    QLabel* m_message;
};
