#include "ValueEditors.h"

#include "AnimationEditor.h"
#include "BoolEditor.h"
#include "ColorEditor.h"
#include "DoubleEditor.h"
#include "EasingCurveEditor.h"
#include "EnumEditor.h"
#include "FlagsEditor.h"
#include "FontEditor.h"
#include "IntEditor.h"
#include "ReadOnlyValue.h"
#include "Switch.h"
#include "TextEditor.h"
#include "TupleEditor.h"

#include <QHash>
#include <QMetaProperty>

namespace {

template <typename Editor>
ValueEditor* make()
{
    return new Editor;
}

QHash<int, ValueEditorFactory>& factories()
{
    static QHash<int, ValueEditorFactory> table = {
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
    return table;
}

ValueEditor* makeEditorOfType(int type)
{
    const ValueEditorFactory factory = factories().value(type, make<ReadOnlyValue>);
    return factory();
}

} // namespace

void registerValueEditor(int type, ValueEditorFactory factory)
{
    factories().insert(type, factory);
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
