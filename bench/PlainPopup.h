#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace bench {

/// The integer keypad in a pop-up window that is nothing but a window, made by hand for \a field,
/// its owner.
QWidget* plainPopup(QWidget* field);

} // namespace bench
