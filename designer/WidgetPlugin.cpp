#include "WidgetPlugin.h"

#include <QIcon>

namespace {

/// Object name of the first instance on a form: the class name without namespace, in lower camel
/// case.
QString instanceName(const QString& className)
{
    QString name = className.section(QStringLiteral("::"), -1);
    const bool prefixed = name.startsWith(QLatin1Char('C')) && name.at(1).isUpper();
    if (prefixed)
        name.remove(0, 1);
    name[0] = name.at(0).toLower();
    return name;
}

} // namespace

WidgetPlugin::WidgetPlugin(const WidgetDescription& description, QObject* parent)
    : QObject(parent)
    , m_description(description)
{
}

QString WidgetPlugin::name() const
{
    return m_description.className;
}

QString WidgetPlugin::group() const
{
    return m_description.group;
}

QString WidgetPlugin::toolTip() const
{
    return m_description.toolTip;
}

QString WidgetPlugin::whatsThis() const
{
    return m_description.toolTip;
}

QString WidgetPlugin::includeFile() const
{
    return m_description.header;
}

QIcon WidgetPlugin::icon() const
{
    // A scalable icon names no sizes, and the widget box shows Qt's logo in place of such icons.
    const QIcon scalable(m_description.icon);
    QIcon icon;
    for (const int extent : {16, 24, 32, 48})
        icon.addPixmap(scalable.pixmap(extent));
    return icon;
}

bool WidgetPlugin::isContainer() const
{
    return m_description.container;
}

bool WidgetPlugin::isInitialized() const
{
    return m_inDesigner;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface*)
{
    m_inDesigner = true;
}

QWidget* WidgetPlugin::createWidget(QWidget* parent)
{
    QWidget* widget = m_description.create(parent);
    if (m_inDesigner && m_description.illustrate)
        m_description.illustrate(widget);
    return widget;
}

QString WidgetPlugin::domXml() const
{
    const QString form =
        QStringLiteral("<ui language=\"c++\" displayname=\"%1\">"
                       "<widget class=\"%2\" name=\"%3\">"
                       "<property name=\"geometry\">"
                       "<rect><x>0</x><y>0</y><width>%4</width><height>%5</height></rect>"
                       "</property>%6</widget>"
                       "<customwidgets><customwidget><class>%2</class><extends>%7</extends>"
                       "</customwidget></customwidgets></ui>");
    const WidgetDescription& d = m_description;
    return form
        .arg(d.className.section(QStringLiteral("::"), -1), d.className, instanceName(d.className))
        .arg(d.size.width())
        .arg(d.size.height())
        .arg(d.properties, d.baseClassName);
}
