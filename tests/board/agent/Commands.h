#pragma once

#include "Application.h"
#include "FrameBuffer.h"
#include "Touchscreen.h"

#include <memory>
#include <string>
#include <vector>

/// What the host asks of the board: gestures, and the program under test.
class Commands
{
public:
    /// Carries out the commands of \a line, which semicolons part, without a pause between them.
    /// Gives what they answer, parted by semicolons too.
    std::string run(const std::string& line);

private:
    std::string runOne(const std::vector<std::string>& words);
    bool touch(const std::vector<std::string>& words);
    std::string start(const std::vector<std::string>& words);
    std::string waitForFrame();
    std::string usage() const;

    FrameBuffer m_frameBuffer;
    std::unique_ptr<Touchscreen> m_touchscreen; // as long as there is an application
    Application m_application;
};
