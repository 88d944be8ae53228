#pragma once

#include "Appearance.h"
#include "pages/Pages.h"

#include <QWidget>

class DemoWidgetPicker;
class GalleryPage;
class PropertyEditor;
QT_BEGIN_NAMESPACE
class QBoxLayout;
class QCheckBox;
class QListWidget;
class QScrollArea;
QT_END_NAMESPACE

/**
 * The gallery's window, made for a touch screen of 800 x 480: switches above, the list of pages at
 * its start, the page in the middle and an editor of its widgets' properties at the end.
 */
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /// Shows the first of \a pages. With a \a styleSheet its switch is on at the start; without one
    /// the switch stands for the example style sheet, and is off.
    explicit GalleryWindow(const QVector<PageEntry>& pages, const QString& styleSheet = QString(),
                           QWidget* parent = nullptr);

    /// The page that is shown; null if there is none.
    GalleryPage* page() const;

    /// Shows the page \a id, made anew; nothing happens if there is none of that id.
    void showPage(const QString& id);

private:
    QCheckBox* addSwitch(const QString& text, const QString& name, bool on);
    void addAppearanceSwitch(const QString& text, const QString& name, bool Appearance::*member);
    QLayout* makeSwitches();
    QLayout* makeColumns();
    void setUpList();
    void setUpPageArea();
    void setUpProperties();
    void makePage(int index);
    void applyAppearance();
    void updateProperties();

    QVector<PageEntry> m_pages;
    QString m_styleSheet;
    Appearance m_appearance;
    QBoxLayout* m_switches;
    QListWidget* m_list;
    QScrollArea* m_pageArea;
    PropertyEditor* m_properties;
    QCheckBox* m_propertiesSwitch;
    DemoWidgetPicker* m_picker;
};
