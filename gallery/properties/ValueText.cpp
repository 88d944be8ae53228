#include "ValueText.h"

#include <QCoreApplication>
#include <QDebug>
#include <QRect>
#include <QVariant>

namespace {

/// A longer text would push everything else off a small screen.
constexpr int maximumLength = 80;

struct ValueText
{
    Q_DECLARE_TR_FUNCTIONS(ValueText)
};

QString text(const QPoint& point)
{
    return QStringLiteral("%1, %2").arg(point.x()).arg(point.y());
}

QString text(const QSize& size)
{
    return QStringLiteral("%1 \u00d7 %2").arg(size.width()).arg(size.height());
}

QString text(const QObject* object)
{
    if (!object)
        return ValueText::tr("none");
    const QString className = QString::fromLatin1(object->metaObject()->className());
    return object->objectName().isEmpty()
        ? className
        : QStringLiteral("%1 \"%2\"").arg(className, object->objectName());
}

/// What Qt prints of the value when debugging, without the wrapping of the variant.
QString debugText(const QVariant& value)
{
    QString printed;
    QDebug(&printed).nospace() << value;
    const QString prefix =
        QStringLiteral("QVariant(%1, ").arg(QString::fromLatin1(value.typeName()));
    const QString content = printed.mid(prefix.size()).trimmed().chopped(1);
    return content.isEmpty() ? QString::fromLatin1(value.typeName()) : content;
}

QString fullText(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return ValueText::tr("none");
    case QMetaType::QPoint:
        return text(value.toPoint());
    case QMetaType::QSize:
        return text(value.toSize());
    case QMetaType::QRect:
        return ValueText::tr("%1 at %2")
            .arg(text(value.toRect().size()), text(value.toRect().topLeft()));
    default:
        break;
    }
    if (value.canConvert<QObject*>())
        return text(value.value<QObject*>());
    return value.canConvert<QString>() ? value.toString() : debugText(value);
}

} // namespace

QString valueText(const QVariant& value)
{
    const QString whole = fullText(value);
    return whole.size() > maximumLength ? whole.left(maximumLength - 1) + QChar(0x2026) : whole;
}
