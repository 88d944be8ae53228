#pragma once

#include <cstddef>

/// What the screen shows, for reading.
class FrameBuffer
{
public:
    FrameBuffer();

    int width() const;
    int height() const;

    /// Whether every pixel is black, as before an application has painted.
    bool isBlack() const;
    void clear();

private:
    int m_width = 0;
    int m_height = 0;
    std::size_t m_size = 0;
    unsigned char* m_pixels = nullptr;
};
