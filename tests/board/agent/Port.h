#pragma once

#include <string>

/// A virtio serial port, by the name that the emulator gave it.
class Port
{
public:
    /// The device file of the port \a name; empty if there is none.
    static std::string deviceOf(const std::string& name);

    explicit Port(const std::string& device);

    /// Waits for the next line.
    std::string readLine();
    void writeLine(const std::string& line);

private:
    int m_file;
    std::string m_unread;
};
