#pragma once

#include "Model.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace test {

/// Commands as text, one a line: the action's name and its argument.
QStringList toLines(const Commands& commands, const Model& model);
/// Lines that name no action of the model are left out.
Commands fromLines(const QStringList& lines, const Model& model);

/// False, with a warning, if the file cannot be used.
bool writeLines(const QString& fileName, const QStringList& lines);
QStringList readLines(const QString& fileName);

/// What a process said of the commands that it was given.
struct Result
{
    bool failed = false;
    int command = 0; ///< The last one begun.
    QString report; ///< The broken invariant, or how the process ended, with its output.

    /// Whether both failed in the same way, whatever the values.
    bool isLike(const Result& other) const;
};

/// Plays commands in processes of their own, so that a crash or a hang is an outcome as any other.
class ChildProcess
{
public:
    /// \a program is this one: it plays \a widget's commands from a file.
    ChildProcess(const QString& program, const QString& widget);

    Result play(const QStringList& lines);

private:
    QString path(const char* name) const;
    int progress() const;

    QString m_program;
    QString m_widget;
    QTemporaryDir m_dir;
};

/**
 * The commands that are left when none, and no run of half, a quarter... of their number, can be
 * taken out without \a fails becoming false. \a commands themselves fail.
 */
Commands shrunk(Commands commands, const std::function<bool(const Commands&)>& fails);

/**
 * Plays \a count random commands of \a widget's model in a process of \a program. Returns an empty
 * text if every invariant was kept, else a report with the seed, what broke and the fewest commands
 * that break it.
 */
QString search(const QString& program, const QString& widget, quint32 seed, int count);

} // namespace test
