#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QVariant;
QT_END_NAMESPACE

/// A short text for a value of any type.
QString valueText(const QVariant& value);
