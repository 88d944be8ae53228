#pragma once

#include "GalleryWindow.h"

#include <QImage>

class PropertyEditor;
class PropertyRow;

namespace test {

/// The gallery with all its pages, on a stage that keeps the platform from being asked for more.
class ShownGallery
{
public:
    explicit ShownGallery(const QString& page, const QSize& size = QSize(800, 480));

    void chooseTool(const char* name);
    PropertyEditor* properties() const;

    /// The demo widget \a name of the page; null if there is none.
    QWidget* demo(const char* name) const;

    /// The row of the property \a name, shown or not; null if there is none.
    PropertyRow* row(const char* name) const;

    /// What the log of signals reads.
    QString log() const;

    QWidget stage;
    GalleryWindow window;
};

/// Style and font as the gallery's own main() has them. Call it in initTestCase().
void prepareGallery();

/// A row of test data for every page: its id.
void addPages();

/// A click in the middle of \a widget, by way of its window.
void tap(QWidget* widget);

QImage imageOf(QWidget* widget);

} // namespace test
