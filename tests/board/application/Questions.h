#pragma once

#include "Journal.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QWidget>

#include <memory>

/// Answers what the host asks: a question is a name and its arguments.
class Questions
{
public:
    /// The answer; undefined for a question that cannot be answered.
    QJsonValue answer(const QJsonArray& question);

private:
    QJsonValue open(const QString& scene);

    Journal m_journal;
    std::unique_ptr<QWidget> m_scene;
};
