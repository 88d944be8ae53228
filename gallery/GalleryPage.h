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

    /// What has signals beside the demo widgets.
    struct Source
    {
        QObject* object;
        QString name;
    };
    const QList<Source>& sources() const;

    /// Whether the page shows what it is to show; true unless something is still being read.
    virtual bool isReady() const;

Q_SIGNALS:
    /// The user wants to see the page \a id.
    void pageRequested(const QString& id);

protected:
    /// Offers \a widget, which stays owned by the page, in the property editor.
    void addDemoWidget(QWidget* widget, const QString& name);

    /// Shows the signals of \a object, which stays owned by the page, with those of the demo
    /// widgets.
    void addSource(QObject* object, const QString& name);

private:
    QList<DemoWidget> m_demoWidgets;
    QList<Source> m_sources;
};
