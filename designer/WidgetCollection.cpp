#include "WidgetCollection.h"

#include "Catalogue.h"

WidgetCollection::WidgetCollection(QObject* parent)
    : QObject(parent)
{
    const QVector<WidgetDescription> catalogue = widgetCatalogue();
    for (const WidgetDescription& description : catalogue)
        m_widgets.append(new WidgetPlugin(description, this));
}

QList<QDesignerCustomWidgetInterface*> WidgetCollection::customWidgets() const
{
    return m_widgets;
}
