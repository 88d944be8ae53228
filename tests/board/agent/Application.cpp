#include "Application.h"

#include "Clock.h"
#include "Files.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// The number after \a key in a file of lines such as "Pss:  123 kB".
std::int64_t valueOf(const std::string& text, const char* key)
{
    const auto begin = text.find(key);
    return begin == std::string::npos ? 0 : std::atoll(text.c_str() + begin + std::strlen(key));
}

/// The words, up to the program, that are set in the environment.
std::size_t countVariables(const std::vector<std::string>& words)
{
    const auto program = std::find_if(words.begin(), words.end(), [](const std::string& word) {
        return word.find('=') == std::string::npos;
    });
    return std::size_t(program - words.begin());
}

[[noreturn]] void execute(std::vector<std::string> words)
{
    const std::size_t variables = countVariables(words);
    for (std::size_t i = 0; i < variables; ++i)
        putenv(words[i].data());
    std::vector<char*> arguments;
    for (std::size_t i = variables; i < words.size(); ++i)
        arguments.push_back(words[i].data());
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    std::perror(arguments[0]);
    _exit(127);
}

} // namespace

void Application::start(const std::vector<std::string>& words)
{
    m_startTime = now();
    m_process = fork();
    if (m_process == 0)
        execute(words);
}

void Application::stop()
{
    if (m_process == 0)
        return;
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
    m_process = 0;
}

void Application::suspend()
{
    kill(m_process, SIGSTOP);
}

void Application::resume()
{
    kill(m_process, SIGCONT);
}

std::int64_t Application::startTime() const
{
    return m_startTime;
}

bool Application::isRunning()
{
    if (m_process != 0 && waitpid(m_process, nullptr, WNOHANG) == m_process)
        m_process = 0;
    return m_process != 0;
}

Application::Usage Application::usage() const
{
    Usage usage;
    const std::string folder = "/proc/" + std::to_string(m_process);
    for (const std::string& thread : entriesOf(folder + "/task")) {
        const std::string task = folder + "/task/" + thread;
        usage.nanoseconds += std::atoll(readFile(task + "/schedstat").c_str());
        const std::string status = readFile(task + "/status");
        usage.wakeUps += valueOf(status, "\nvoluntary_ctxt_switches:")
            + valueOf(status, "\nnonvoluntary_ctxt_switches:");
    }
    const std::string memory = readFile(folder + "/smaps_rollup");
    usage.residentKilobytes = valueOf(memory, "\nRss:");
    usage.proportionalKilobytes = valueOf(memory, "\nPss:");
    return usage;
}

/// A number that changes whenever one of the threads has run.
std::int64_t Application::activity() const
{
    std::int64_t sum = 0;
    const std::string folder = "/proc/" + std::to_string(m_process) + "/task";
    for (const std::string& thread : entriesOf(folder))
        sum += std::atoll(readFile(folder + "/" + thread + "/schedstat").c_str());
    return sum;
}

bool Application::waitUntilIdle(std::int64_t quiet, std::int64_t limit)
{
    constexpr std::int64_t interval = 20;
    const std::int64_t end = now() + limit;
    std::int64_t last = activity();
    std::int64_t lastChange = now();
    while (now() < end && isRunning()) {
        pass(interval);
        const std::int64_t current = activity();
        if (current != last) {
            last = current;
            lastChange = now();
        } else if (now() - lastChange >= quiet) {
            return true;
        }
    }
    return false;
}
