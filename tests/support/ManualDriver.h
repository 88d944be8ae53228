#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>

namespace test {

/// Lets time pass for animations as the test has it, from its construction to its end.
class ManualDriver : public QAnimationDriver
{
public:
    ManualDriver()
    {
        install();
    }
    ~ManualDriver() override
    {
        uninstall();
    }

    qint64 elapsed() const override
    {
        return m_time;
    }

    /// Has Qt take up what was started, and then tick after that many \a milliseconds.
    void pass(int milliseconds)
    {
        QCoreApplication::processEvents(); // takes the animations up
        QCoreApplication::processEvents(); // and starts the clock, if it was idle
        m_time += milliseconds;
        advance();
    }

    /// The application is busy, and nothing ticks.
    void block(int milliseconds)
    {
        m_time += milliseconds;
    }

private:
    qint64 m_time = 0;
};

} // namespace test
