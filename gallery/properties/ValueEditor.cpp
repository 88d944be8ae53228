#include "ValueEditor.h"

#include "FoldoutEditors.h"
#include "SimpleEditors.h"

#include <Switch.h>

#include <QHash>
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
        {qMetaTypeId<Style::Animation>(), make<AnimationEditor>},
    };
    return factories.value(type, make<ReadOnlyValue>)();
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
    const int index = object.metaObject()->indexOfProperty(name.constData());
    if (index < 0)
        return makeEditorOfType(object.property(name.constData()).userType());

    const QMetaProperty property = object.metaObject()->property(index);
    if (!property.isWritable())
        return new ReadOnlyValue;
    if (property.isFlagType())
        return new FlagsEditor(property.enumerator());
    if (property.isEnumType())
        return new EnumEditor(property.enumerator());
    return makeEditorOfType(property.userType());
}
