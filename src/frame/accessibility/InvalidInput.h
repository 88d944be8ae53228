#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace ui {

/**
 * Says in the accessible description of \a field that its input is invalid, before what stands there
 * otherwise, or if it is \a valid leaves that alone again.
 *
 * Qt has no accessible state for it, and no way to extend its own accessible interface of line edits,
 * which knows where each character is.
 */
void describeValidity(QLineEdit& field, bool valid);

} // namespace ui
