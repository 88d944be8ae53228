#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QPushButton;
class QWidget;
QT_END_NAMESPACE

namespace test {

/// The key of the accessible name \a name, if there are several the one that is shown; null without
/// it.
QPushButton* findKeypadKey(const QWidget& keypad, const QString& name);

/// The same, but without the key the test fails.
QPushButton* keypadKey(const QWidget& keypad, const QString& name);

/// The accessible names of the keys that are shown, or would be with the keypad, in layout order.
QStringList shownKeys(const QWidget& keypad);

/// Presses the key of the accessible name \a name with the mouse and releases it.
void tapKey(const QWidget& keypad, const QString& name);

} // namespace test
