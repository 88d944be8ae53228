#include "Port.h"

#include "Files.h"

#include <fcntl.h>
#include <unistd.h>

std::string Port::deviceOf(const std::string& name)
{
    const std::string folder = "/sys/class/virtio-ports";
    for (const std::string& port : entriesOf(folder)) {
        if (readFile(folder + "/" + port + "/name") == name + "\n")
            return "/dev/" + port;
    }
    return {};
}

Port::Port(const std::string& device)
    : m_file(open(device.c_str(), O_RDWR | O_CLOEXEC))
{
}

std::string Port::readLine()
{
    std::string::size_type end;
    while ((end = m_unread.find('\n')) == std::string::npos) {
        char buffer[4096];
        const ssize_t count = read(m_file, buffer, sizeof buffer);
        if (count > 0)
            m_unread.append(buffer, std::size_t(count));
        else
            usleep(10000); // nobody is connected yet
    }
    const std::string line = m_unread.substr(0, end);
    m_unread.erase(0, end + 1);
    return line;
}

void Port::writeLine(const std::string& line)
{
    const std::string text = line + "\n";
    for (std::string::size_type written = 0; written < text.size();) {
        const ssize_t count = write(m_file, text.data() + written, text.size() - written);
        if (count <= 0)
            return;
        written += std::size_t(count);
    }
}
