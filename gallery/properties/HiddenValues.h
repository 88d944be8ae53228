#pragma once

#include "SimpleEditors.h"

/**
 * What can be set on a widget of the library, but is no Qt property and often cannot be read back:
 * the charge of a battery, the mask of a frame and the like.
 *
 * The gallery sets such a value here, which remembers it, and the property editor shows it.
 */
namespace hiddenvalues {

/// The names of those that \a declaring adds to its base class, in the order of its header.
QVector<QByteArray> names(const QMetaObject& declaring);

/// Whether \a object has one called \a name.
bool has(const QObject& object, const QByteArray& name);

/// The value last set, or the one that \a object began with; invalid if there is none called \a
/// name.
QVariant value(const QObject& object, const QByteArray& name);

/// Sets it; nothing happens if there is none called \a name.
void set(QObject* object, const QByteArray& name, const QVariant& value);

/// What an enumerated value may be; empty for any other.
EnumEditor::Choices choices(const QObject& object, const QByteArray& name);

} // namespace hiddenvalues
