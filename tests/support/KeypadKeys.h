#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QPushButton;
class QWidget;
QT_END_NAMESPACE

namespace test {

/// The key of the accessible name \a name, shown or not; fails the test and returns null without it.
QPushButton* keypadKey(const QWidget& keypad, const QString& name);

/// The accessible names of the keys that are shown, or would be with the keypad, in layout order.
QStringList shownKeys(const QWidget& keypad);

/// Presses the key of the accessible name \a name with the mouse and releases it.
void tapKey(const QWidget& keypad, const QString& name);

} // namespace test
