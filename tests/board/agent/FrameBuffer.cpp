#include "FrameBuffer.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <linux/fb.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <unistd.h>

FrameBuffer::FrameBuffer()
{
    const int file = open("/dev/fb0", O_RDWR | O_CLOEXEC);
    fb_var_screeninfo variable;
    fb_fix_screeninfo fixed;
    if (file < 0 || ioctl(file, FBIOGET_VSCREENINFO, &variable) < 0
        || ioctl(file, FBIOGET_FSCREENINFO, &fixed) < 0) {
        std::perror("frame buffer");
        return;
    }
    m_width = int(variable.xres);
    m_height = int(variable.yres);
    m_size = std::size_t(fixed.line_length) * variable.yres;
    void* const pixels = mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (pixels == MAP_FAILED)
        std::perror("frame buffer");
    else
        m_pixels = static_cast<unsigned char*>(pixels);
    close(file);
}

int FrameBuffer::width() const
{
    return m_width;
}

int FrameBuffer::height() const
{
    return m_height;
}

bool FrameBuffer::isBlack() const
{
    // The fourth byte of a pixel is its opacity, which is not black.
    for (std::size_t i = 0; i + 2 < m_size; i += 4) {
        if (m_pixels[i] || m_pixels[i + 1] || m_pixels[i + 2])
            return false;
    }
    return true;
}

void FrameBuffer::clear()
{
    if (m_pixels)
        std::memset(m_pixels, 0, m_size);
}
