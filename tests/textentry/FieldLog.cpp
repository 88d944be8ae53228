#include "FieldLog.h"

#include "QtVersions.h"

#include <QEvent>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QVariant>

#include <utility>

namespace test {

namespace {

QString nameOf(const QEvent* event)
{
    const char* name = QMetaEnum::fromType<QEvent::Type>().valueToKey(event->type());
    return name ? QString::fromLatin1(name) : QString::number(event->type());
}

} // namespace

FieldLog::FieldLog(QObject* object)
    : m_object(object)
{
    object->installEventFilter(this);
    const QMetaObject& meta = *object->metaObject();
    const int firstSlot = metaObject()->methodCount();
    for (int i = 0; i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            QMetaObject::connect(object, i, this, firstSlot + i, Qt::DirectConnection);
    }
}

void FieldLog::add(const QString& entry)
{
    m_entries.append(entry);
}

QStringList FieldLog::take()
{
    return std::exchange(m_entries, {});
}

bool FieldLog::eventFilter(QObject* watched, QEvent* event)
{
    QString entry = nameOf(event);
    if (event->type() == QEvent::DynamicPropertyChange) {
        const QByteArray name = static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName();
        const QVariant value = watched->property(name.constData());
        entry += QStringLiteral(" %1=%2").arg(QString::fromUtf8(name), value.toString());
    }
    add(entry);
    return false;
}

/// Called for each signal, as there are no slots of this class that it could be connected to.
int FieldLog::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    add(textOf(m_object->metaObject()->method(id), arguments));
    return -1;
}

QString FieldLog::textOf(const QMetaMethod& signal, void** arguments) const
{
    QStringList values;
    for (int i = 0; i < signal.parameterCount(); ++i)
        values.append(test::variantOf(signal.parameterType(i), arguments[i + 1]).toString());
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(signal.name()),
                                        values.join(QStringLiteral(", ")));
}

} // namespace test
