#pragma once

#include <QList>
#include <QWidget>

/**
 * One page of the gallery: a widget family in its typical uses and states.
 *
 * A page lays its widgets out itself and names those whose properties the user may edit.
 */
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget* parent = nullptr);

    /// A widget that the property editor offers, and the name that it is offered by.
    struct DemoWidget
    {
        QWidget* widget;
        QString name;
    };
    const QList<DemoWidget>& demoWidgets() const;

    /// Whether the page shows what it is to show; true unless something is still being read.
    virtual bool isReady() const;

protected:
    /// Offers \a widget, which stays owned by the page, in the property editor.
    void addDemoWidget(QWidget* widget, const QString& name);

private:
    QList<DemoWidget> m_demoWidgets;
};
