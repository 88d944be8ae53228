#pragma once

#include <QString>

namespace ui {
class KeypadLineEdit;
class LineEdit;
} // namespace ui

QT_BEGIN_NAMESPACE
class QPixmap;
QT_END_NAMESPACE

/// Pictures of fields that are being edited, which takes a window of their own, and the focus.
namespace fieldpicture {

/// \a field, which is deleted, with the focus and after the user has typed \a text.
QPixmap edited(ui::LineEdit* field, const QString& text);

/// The same with the keypad of \a field in its place.
QPixmap edited(ui::KeypadLineEdit* field, const QString& text);

} // namespace fieldpicture
