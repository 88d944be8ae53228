#pragma once

#include <QMetaType>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace test {

/// Something that a user or an application does over and over.
struct Workload
{
    const char* name;
    /// Fills a window, and returns what to do in each iteration; that is false if it did not
    /// happen.
    std::function<bool(int iteration)> (*begin)(QWidget& window);
};

QVector<Workload> workloads();

} // namespace test

Q_DECLARE_METATYPE(test::Workload)
