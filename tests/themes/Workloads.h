#pragma once

#include <QMetaType>
#include <QStringList>
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
    const char* classes; ///< That it uses, separated by spaces.
    /// Fills a window, and returns what to do in each iteration; that is false if it did not
    /// happen.
    std::function<bool(int iteration)> (*begin)(QWidget& window);
};

QVector<Workload> workloads();

/// The classes that no workload uses.
QStringList classesWithoutWorkload();

} // namespace test

Q_DECLARE_METATYPE(test::Workload)
