#include "ValueEditor.h"

#include "FoldoutEditors.h"
#include "HiddenValues.h"
#include "SimpleEditors.h"

#include <Switch.h>

#include <QHash>
#include <QLineEdit>
#include <QMetaProperty>

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
