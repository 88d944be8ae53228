#pragma once

#include <QStringList>

/// What the widgets of a scene announced since it was last asked.
class Journal
{
public:
    void record(const QString& entry);
    QStringList take();

private:
    QStringList m_entries;
};
