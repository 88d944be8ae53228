#pragma once

#include <QLibraryInfo>
#include <QMetaType>
#include <QMouseEvent>
#include <QVariant>

#include <cmath>

/// What Qt 6 calls by other names than Qt 5, where no name serves both.
namespace test {

/// In the coordinates of the widget that gets \a event.
inline QPointF positionOf(const QMouseEvent& event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.localPos();
#else
    return event.position();
#endif
}

inline QPointF globalPositionOf(const QMouseEvent& event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.screenPos();
#else
    return event.globalPosition();
#endif
}

/// A copy of the \a value of a meta-type.
inline QVariant variantOf(int type, const void* value)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QVariant(type, value);
#else
    return QVariant(QMetaType(type), value);
#endif
}

/// Where Qt keeps its texts in other languages.
inline QString qtTranslations()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

/// As Qt 5's qRound(): Qt 6 rounds the halves below zero down.
inline int roundedHalfUp(double value)
{
    return int(std::floor(value + 0.5));
}

} // namespace test
