#include "Questions.h"

#include "CutOff.h"
#include "scenes/AllScenes.h"
#include "ScreenPart.h"

#include <ui/KeypadPopup.h>

#include <QApplication>
#include <QVariant>

namespace {

QJsonValue place(const QString& path)
{
    const ScreenPart part = ScreenPart::find(path);
    if (!part.widget || !part.isInSight())
        return QJsonValue::Null;
    const QRect rect = part.onScreen();
    return QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonValue property(const QString& path, const QString& name)
{
    const ScreenPart part = ScreenPart::find(path);
    return part.widget ? QJsonValue::fromVariant(part.widget->property(name.toLatin1().constData()))
                       : QJsonValue(QJsonValue::Undefined);
}

QJsonValue setProperty(const QString& path, const QString& name, const QJsonValue& value)
{
    const ScreenPart part = ScreenPart::find(path);
    if (!part.widget)
        return QJsonValue::Undefined;
    return part.widget->setProperty(name.toLatin1().constData(), value.toVariant());
}

QJsonValue call(const QString& path, const QString& slot)
{
    const ScreenPart part = ScreenPart::find(path);
    if (!part.widget)
        return QJsonValue::Undefined;
    return QMetaObject::invokeMethod(part.widget, slot.toLatin1().constData());
}

QJsonValue cutOffIn(const QString& path)
{
    const ScreenPart part = ScreenPart::find(path);
    return part.widget ? QJsonArray::fromStringList(cutOff(*part.widget))
                       : QJsonValue(QJsonValue::Undefined);
}

/// The object names of the fields whose keypads are open.
QJsonValue keypads()
{
    QStringList fields;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        if (widget->isVisible() && qobject_cast<const ui::KeypadPopup*>(widget))
            fields.append(widget->parent()->objectName());
    }
    fields.sort();
    return QJsonArray::fromStringList(fields);
}

QJsonValue focus()
{
    const QWidget* widget = QApplication::focusWidget();
    return widget ? widget->objectName() : QString();
}

} // namespace

QJsonValue Questions::answer(const QJsonArray& question)
{
    const QString name = question.at(0).toString();
    const QString path = question.at(1).toString();
    if (name == QLatin1String("open"))
        return open(path);
    if (name == QLatin1String("place"))
        return place(path);
    if (name == QLatin1String("property"))
        return property(path, question.at(2).toString());
    if (name == QLatin1String("set"))
        return setProperty(path, question.at(2).toString(), question.at(3));
    if (name == QLatin1String("call"))
        return call(path, question.at(2).toString());
    if (name == QLatin1String("cut off"))
        return cutOffIn(path);
    if (name == QLatin1String("keypads"))
        return keypads();
    if (name == QLatin1String("focus"))
        return focus();
    if (name == QLatin1String("journal"))
        return QJsonArray::fromStringList(m_journal.take());
    return QJsonValue::Undefined;
}

QJsonValue Questions::open(const QString& scene)
{
    m_scene.reset();
    m_journal.take();
    m_scene.reset(makeScene(scene, m_journal));
    if (!m_scene)
        return QJsonValue::Undefined;
    m_scene->setObjectName(QStringLiteral("window"));
    m_scene->showFullScreen();
    return true;
}
