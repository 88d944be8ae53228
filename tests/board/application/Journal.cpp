#include "Journal.h"

#include <utility>

void Journal::record(const QString& entry)
{
    m_entries.append(entry);
}

QStringList Journal::take()
{
    return std::exchange(m_entries, {});
}
