#pragma once

#include <cstdint>
#include <string>
#include <sys/types.h>
#include <vector>

/// The one program under test.
class Application
{
public:
    /// What it has used since its start.
    struct Usage
    {
        std::int64_t nanoseconds = 0; ///< Processor time of all threads.
        std::int64_t wakeUps = 0; ///< How often a thread went to sleep or was interrupted.
        std::int64_t residentKilobytes = 0;
        std::int64_t proportionalKilobytes = 0;
    };

    /// \a words are NAME=VALUE for the environment, then the program and its arguments.
    void start(const std::vector<std::string>& words);
    void stop();
    void suspend();
    void resume();

    std::int64_t startTime() const;
    bool isRunning();
    Usage usage() const;

    /// Waits until no thread has run for \a quiet milliseconds, at most \a limit.
    bool waitUntilIdle(std::int64_t quiet, std::int64_t limit);

private:
    std::int64_t activity() const;

    pid_t m_process = 0;
    std::int64_t m_startTime = 0;
};
