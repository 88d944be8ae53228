#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace ui {

/**
 * Remembers how the input of \a field was validated, for those who begin to listen later, and
 * announces a new one to assistive technology. Nobody else can notice: neither the properties of
 * the field nor its events have a part in it.
 */
void publishValidity(QObject* field, bool valid);

/// Whether the input of \a field was invalid when last validated.
bool hasInvalidInput(const QObject* field);

/// Forgets \a field, which is being deleted.
void forgetValidity(const QObject* field);

} // namespace ui
