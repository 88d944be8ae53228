#pragma once

#include <QStringList>
#include <QTemporaryDir>

namespace soak {

/// What a process said of the steps that it was given.
struct Verdict
{
    bool failed = false;
    int step = 0; ///< The last one begun.
    QString report; ///< The broken promise, or how the process ended, with its output.

    /// Whether both failed in the same way, whatever the values.
    bool isLike(const Verdict& other) const;
};

/// Plays steps in processes of their own, so that a crash or a hang is an outcome as any other.
class Trial
{
public:
    /// \a program is this one: it plays \a widget's steps from a file.
    Trial(const QString& program, const QString& widget);

    Verdict play(const QStringList& lines);

private:
    QString path(const char* name) const;
    int progress() const;

    QString m_program;
    QString m_widget;
    QTemporaryDir m_dir;
};

} // namespace soak
