#include "ValueEditor.h"

#include "FoldoutEditors.h"
#include "HiddenValues.h"
#include "SimpleEditors.h"

#include <Switch.h>

#include <QCoreApplication>
#include <QDebug>
#include <QHash>
#include <QLineEdit>
#include <QMetaProperty>
#include <QRect>
#include <QVariant>

namespace {

template <typename Editor>
ValueEditor* make()
{
    return new Editor;
}

ValueEditor* makeEditorOfType(int type)
{
    static const QHash<int, ValueEditor* (*)()> factories = {
        {QMetaType::Bool, make<BoolEditor>},
        {QMetaType::Int, make<IntEditor>},
        {QMetaType::Double, make<DoubleEditor>},
        {QMetaType::QString, make<TextEditor>},
        {QMetaType::QColor, make<ColorEditor>},
        {QMetaType::QFont, make<FontEditor>},
        {QMetaType::QPoint, make<TupleEditor>},
        {QMetaType::QSize, make<TupleEditor>},
        {QMetaType::QRect, make<TupleEditor>},
        {QMetaType::QEasingCurve, make<EasingCurveEditor>},
        {QMetaType::QStringList, make<TextListEditor>},
        {QMetaType::QPalette, make<PaletteEditor>},
        {QMetaType::QSizePolicy, make<SizePolicyEditor>},
        {qMetaTypeId<Style::Animation>(), make<AnimationEditor>},
    };
    return factories.value(type, make<ReadOnlyValue>)();
}

ValueEditor* makeStaticEditor(const QMetaProperty& property)
{
    if (!property.isWritable())
        return new ReadOnlyValue;
    if (property.isFlagType())
        return new FlagsEditor(property.enumerator());
    if (property.isEnumType())
        return new EnumEditor(property.enumerator());
    return makeEditorOfType(property.userType());
}

/// Whether the property has the characters of a field that shows dots in their place.
bool isSecret(const QObject& object, const QByteArray& name)
{
    const auto* field = qobject_cast<const QLineEdit*>(&object);
    return field && field->echoMode() != QLineEdit::Normal
        && (name == "text" || name == "selectedText");
}

void hideText(ValueEditor* editor)
{
    if (auto* text = qobject_cast<TextEditor*>(editor))
        text->hideText();
    if (auto* text = qobject_cast<ReadOnlyValue*>(editor))
        text->hideText();
}

} // namespace

ValueEditor::ValueEditor(QWidget* parent)
    : QWidget(parent)
{
}

bool ValueEditor::isNarrow() const
{
    return false;
}

ValueEditor* makeValueEditor(const QObject& object, const QByteArray& name)
{
    if (hiddenvalues::has(object, name)) {
        const EnumEditor::Choices choices = hiddenvalues::choices(object, name);
        if (!choices.isEmpty())
            return new EnumEditor(choices);
        return makeEditorOfType(hiddenvalues::value(object, name).userType());
    }
    const int index = object.metaObject()->indexOfProperty(name.constData());
    if (index < 0)
        return makeEditorOfType(object.property(name.constData()).userType());
    ValueEditor* editor = makeStaticEditor(object.metaObject()->property(index));
    if (isSecret(object, name))
        hideText(editor);
    return editor;
}

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
