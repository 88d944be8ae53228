#pragma once

#include <QByteArray>

class ValueEditor;
QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

using ValueEditorFactory = ValueEditor* (*)();

/// Has values of the meta-type \a type edited by what \a factory makes, in place of what was so far.
void registerValueEditor(int type, ValueEditorFactory factory);

/// An editor fit for the property \a name of \a object, or a read-only display if it cannot be edited.
ValueEditor* makeValueEditor(const QObject& object, const QByteArray& name);
