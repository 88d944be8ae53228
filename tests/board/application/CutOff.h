#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The widgets in \a window that reach beyond the one that they lie on, unless it can be scrolled
/// to the rest of them, and the labels and buttons that have less room than their texts need.
QStringList cutOff(const QWidget& window);
