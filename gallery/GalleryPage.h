#pragma once

#include <QList>
#include <QWidget>

/**
 * One page of the gallery: a widget family in its typical uses and states.
 *
 * A page lays its widgets out itself and names those whose properties the visitor may edit.
 */
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget* parent = nullptr);

    /// A widget that the property editor offers, and the name that it is offered by.
    struct Exhibit
    {
        QWidget* widget;
        QString name;
    };
    const QList<Exhibit>& exhibits() const;

protected:
    /// Offers \a widget, which stays owned by the page, in the property editor.
    void addExhibit(QWidget* widget, const QString& name);

private:
    QList<Exhibit> m_exhibits;
};
