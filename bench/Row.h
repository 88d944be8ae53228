#pragma once

#include <QString>
#include <QVector>

#include <functional>
#include <utility>

namespace bench {

/// One unit of work; it keeps alive what it works on and may be run any number of times.
class Work
{
public:
    /// \a run is what is measured; \a prepare comes before each run and is not.
    template <typename Run>
    Work(Run run, std::function<void()> prepare = {}) // not explicit: a lambda is a work
        : m_run(std::move(run))
        , m_prepare(std::move(prepare))
    {
    }

    bool needsPreparation() const
    {
        return bool(m_prepare);
    }
    void prepare() const
    {
        if (m_prepare)
            m_prepare();
    }
    void operator()() const
    {
        m_run();
    }

private:
    std::function<void()> m_run;
    std::function<void()> m_prepare;
};

/// Makes a unit of work ready to be run.
using Setup = std::function<Work()>;

/// One line of the table: the same work done by the library, by Qt, and without any widget.
struct Row
{
    QString name;
    Setup ours;
    QString counterpartName; ///< What one would use instead.
    Setup counterpart; ///< May be empty.
    Setup baseline; ///< The least that the work costs; may be empty.
    int parts = 1; ///< How many widgets one run is for; the table tells the cost of one.
};

/// What Qt's dispatch costs, and the rows whose names match the regular expression \a filter, in
/// their order.
QVector<Row> rows(const QString& filter);

} // namespace bench
