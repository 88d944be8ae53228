#include "Progress.h"

#include <cstring>

namespace soak {

Progress::Progress(const QString& fileName)
    : m_file(fileName)
{
    if (m_file.open(QIODevice::ReadWrite) && m_file.resize(sizeof(int)))
        m_memory = m_file.map(0, sizeof(int));
}

void Progress::set(int step)
{
    if (m_memory)
        std::memcpy(m_memory, &step, sizeof step);
}

} // namespace soak
