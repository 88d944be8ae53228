#include "Commands.h"

#include "Clock.h"
#include "Devices.h"

#include <cstdlib>
#include <sstream>
#include <sys/reboot.h>
#include <unistd.h>

namespace {

constexpr std::int64_t frameLimit = 60000; // milliseconds

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        if (!part.empty())
            parts.push_back(part);
    }
    return parts;
}

int number(const std::vector<std::string>& words, std::size_t index)
{
    return index < words.size() ? std::atoi(words[index].c_str()) : 0;
}

} // namespace

std::string Commands::run(const std::string& line)
{
    std::string answers;
    for (const std::string& command : split(line, ';'))
        answers += (answers.empty() ? "" : ";") + runOne(split(command, ' '));
    return answers;
}

std::string Commands::runOne(const std::vector<std::string>& words)
{
    const std::string& name = words.front();
    if (touch(words))
        return "ok";
    if (name == "wait")
        pass(number(words, 1));
    else if (name == "start")
        return start(words);
    else if (name == "frame")
        return waitForFrame();
    else if (name == "stop")
        m_application.stop();
    else if (name == "suspend")
        m_application.suspend();
    else if (name == "resume")
        m_application.resume();
    else if (name == "idle")
        return m_application.waitUntilIdle(number(words, 1), number(words, 2)) ? "ok" : "busy";
    else if (name == "running")
        return m_application.isRunning() ? "yes" : "no";
    else if (name == "usage")
        return usage();
    else if (name == "off")
        reboot(RB_POWER_OFF);
    else
        return "unknown " + name;
    return "ok";
}

bool Commands::touch(const std::vector<std::string>& words)
{
    const std::string& name = words.front();
    const int contact = number(words, 1);
    if (!m_touchscreen || contact < 0 || contact >= Touchscreen::contacts)
        return false;
    if (name == "press")
        m_touchscreen->press(contact, number(words, 2), number(words, 3));
    else if (name == "move")
        m_touchscreen->move(contact, number(words, 2), number(words, 3), number(words, 4));
    else if (name == "release")
        m_touchscreen->release(contact);
    else
        return false;
    return true;
}

std::string Commands::start(const std::vector<std::string>& words)
{
    m_application.stop();
    m_frameBuffer.clear();
    // A new one, since the kernel keeps back coordinates that have not changed, which a program
    // that has just started does not know.
    m_touchscreen.reset();
    m_touchscreen = std::make_unique<Touchscreen>(m_frameBuffer.width(), m_frameBuffer.height());
    std::vector<std::string> all = inputEnvironment(m_touchscreen->device());
    all.insert(all.end(), words.begin() + 1, words.end());
    m_application.start(all);
    return "ok";
}

/// Milliseconds from the start to the first pixel that is not black.
std::string Commands::waitForFrame()
{
    const std::int64_t end = m_application.startTime() + frameLimit;
    while (m_frameBuffer.isBlack()) {
        if (now() > end || !m_application.isRunning())
            return "none";
        pass(5);
    }
    return std::to_string(now() - m_application.startTime());
}

std::string Commands::usage() const
{
    const Application::Usage usage = m_application.usage();
    return std::to_string(usage.nanoseconds) + " " + std::to_string(usage.wakeUps) + " "
        + std::to_string(usage.residentKilobytes) + " "
        + std::to_string(usage.proportionalKilobytes);
}
