#pragma once

#include <QFile>

namespace soak {

/// The number of the step under way, in a mapped file that survives the crash of its writer.
class Progress
{
public:
    explicit Progress(const QString& fileName);

    void set(int step);

private:
    QFile m_file;
    uchar* m_memory = nullptr;
};

} // namespace soak
