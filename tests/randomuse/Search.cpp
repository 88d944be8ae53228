#include "Search.h"

#include "models/Models.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

namespace test {

namespace {

constexpr int timeout = 120 * 1000; // milliseconds without a command done until it counts as a hang

/// The last line, without what differs from run to run.
QString kind(const QString& report)
{
    QString line =
        report.trimmed().section(QLatin1Char('\n'), -1).section(QLatin1String(" is "), 0, 0);
    return line.remove(QRegularExpression(QStringLiteral("[0-9]")));
}

/// One attempt for each run of \a length commands; whether any was taken out.
bool takeOut(Commands& commands, int length, const std::function<bool(const Commands&)>& fails)
{
    bool taken = false;
    // From the end on, so that what a command needs is still there when the command is tried.
    for (int end = commands.size(); end > 0; end -= length) {
        const int begin = qMax(0, end - length);
        Commands fewer = commands;
        fewer.remove(begin, end - begin);
        if (!fewer.isEmpty() && fails(fewer)) {
            commands = fewer;
            taken = true;
        }
    }
    return taken;
}

// A crash may come of what threads do, and be another with every command that is left out.
constexpr int maxRuns = 500;
constexpr int maxTime = 5 * 60 * 1000; // milliseconds
constexpr int maxLines = 100; // more can be had from the seed

QString report(const QString& widget, quint32 seed, const Result& result, QStringList lines)
{
    if (lines.size() > maxLines)
        lines = QStringList(QStringLiteral("...")) + lines.mid(lines.size() - maxLines);
    return QStringLiteral(
               "%1, seed %2, command %3: %4\nFewest commands found that do the same:\n  %5\n")
        .arg(widget)
        .arg(seed)
        .arg(result.command)
        .arg(result.report.trimmed(), lines.join(QLatin1String("\n  ")));
}

} // namespace

QStringList toLines(const Commands& commands, const Model& model)
{
    QStringList lines;
    lines.reserve(commands.size());
    for (const Command& command : commands)
        lines.append(model.actions().at(command.action).name + QLatin1Char(' ')
                     + QString::number(command.argument));
    return lines;
}

Commands fromLines(const QStringList& lines, const Model& model)
{
    Commands commands;
    for (const QString& line : lines) {
        const int action = model.actionNamed(line.section(QLatin1Char(' '), 0, 0));
        if (action >= 0)
            commands.append({action, line.section(QLatin1Char(' '), 1).toUInt()});
    }
    return commands;
}

bool writeLines(const QString& fileName, const QStringList& lines)
{
    QFile file(fileName);
    const QByteArray text = lines.join(QLatin1Char('\n')).toUtf8() + '\n';
    const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    if (!written)
        qWarning("cannot write %s", qPrintable(fileName));
    return written;
}

QStringList readLines(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("cannot read %s", qPrintable(fileName));
        return {};
    }
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool Result::isLike(const Result& other) const
{
    return failed && other.failed && kind(report) == kind(other.report);
}

ChildProcess::ChildProcess(const QString& program, const QString& widget)
    : m_program(program)
    , m_widget(widget)
{
}

Result ChildProcess::play(const QStringList& lines)
{
    writeLines(path("commands"), lines);
    QFile(path("progress")).remove();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(m_program,
                  {QStringLiteral("--play"), m_widget, path("commands"), path("progress")});

    Result result;
    bool finished = false;
    int before = -1;
    while (!finished && before != progress()) {
        before = progress();
        finished = process.waitForFinished(timeout);
    }
    if (!finished) {
        process.kill();
        process.waitForFinished();
    }
    result.failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    result.command = progress();
    result.report = QString::fromUtf8(process.readAll());
    if (!finished)
        result.report += QStringLiteral("hangs\n");
    else if (process.exitStatus() != QProcess::NormalExit)
        result.report += QStringLiteral("crashes\n");
    return result;
}

QString ChildProcess::path(const char* name) const
{
    return m_dir.filePath(QLatin1String(name));
}

int ChildProcess::progress() const
{
    QFile file(path("progress"));
    int command = 0;
    if (file.open(QIODevice::ReadOnly))
        file.read(reinterpret_cast<char*>(&command), sizeof command);
    return command;
}

Commands shrunk(Commands commands, const std::function<bool(const Commands&)>& fails)
{
    int length = qMax(1, commands.size() / 2);
    while (commands.size() > 1) {
        const bool taken = takeOut(commands, length, fails);
        if (length == 1 && !taken)
            break;
        length = qMax(1, length / 2);
    }
    return commands;
}

QString search(const QString& program, const QString& widget, quint32 seed, int count)
{
    const std::unique_ptr<Model> model = newModel(widget);
    if (!model)
        return QStringLiteral("there is no model for ") + widget;
    Commands commands = model->commands(seed, count);
    ChildProcess child(program, widget);
    const Result result = child.play(toLines(commands, *model));
    if (!result.failed)
        return QString();

    commands.resize(qMin(commands.size(), result.command + 1));
    int runs = 0;
    QElapsedTimer time;
    time.start();
    const auto fails = [&](const Commands& fewer) {
        return ++runs <= maxRuns && time.elapsed() < maxTime
            && child.play(toLines(fewer, *model)).isLike(result);
    };
    return report(widget, seed, result, toLines(shrunk(commands, fails), *model));
}

} // namespace test
