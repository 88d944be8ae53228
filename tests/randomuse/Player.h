#pragma once

#include "Model.h"

#include <QFile>
#include <QObject>

namespace test {

/// Keeps what qWarning() and worse report from now on, for takeWarnings().
void collectWarnings();

/// What has been reported since the last call.
QStringList takeWarnings();

/**
 * Ends every menu that opens in the next iteration of the event loop: a menu has an event loop of
 * its own, in which no command is played. Chooses the first entry every other time.
 */
class MenuCloser : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole application.
    MenuCloser();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_choose = false;
};

/// The number of the command under way, in a mapped file that survives the crash of its writer.
class Progress
{
public:
    explicit Progress(const QString& fileName);

    void set(int command);

private:
    QFile m_file;
    uchar* m_memory = nullptr;
};

/// How a run of commands ended: with the last command and what was broken, or after all of them.
struct Outcome
{
    int command = -1;
    QString broken; ///< Empty if nothing was.
};

/**
 * Performs \a commands one by one, checks the model and the warnings after each, and stops at the
 * first invariant that is not kept. \a progress is called with each command's number before it.
 */
Outcome play(Model& model, const Commands& commands, const std::function<void(int)>& progress);

} // namespace test
