#pragma once

#include <QMetaType>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace soak {

/// Something that a user or an application does over and over.
struct Use
{
    const char* name;
    /// Fills a window, and returns what to do in each round; that is false if it did not happen.
    std::function<bool(int round)> (*begin)(QWidget& window);
};

QVector<Use> uses();

} // namespace soak

Q_DECLARE_METATYPE(soak::Use)
