#include "Trial.h"

#include "StepFile.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

namespace soak {

namespace {

constexpr int patience = 120 * 1000; // milliseconds without a step done until it counts as a hang

/// The last line, without what differs from run to run.
QString kind(const QString& report)
{
    QString line =
        report.trimmed().section(QLatin1Char('\n'), -1).section(QLatin1String(" is "), 0, 0);
    return line.remove(QRegularExpression(QStringLiteral("[0-9]")));
}

} // namespace

bool Verdict::isLike(const Verdict& other) const
{
    return failed && other.failed && kind(report) == kind(other.report);
}

Trial::Trial(const QString& program, const QString& widget)
    : m_program(program)
    , m_widget(widget)
{
}

Verdict Trial::play(const QStringList& lines)
{
    writeLines(path("steps"), lines);
    QFile(path("progress")).remove();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(m_program, {QStringLiteral("--play"), m_widget, path("steps"), path("progress")});

    Verdict verdict;
    bool finished = false;
    int before = -1;
    while (!finished && before != progress()) {
        before = progress();
        finished = process.waitForFinished(patience);
    }
    if (!finished) {
        process.kill();
        process.waitForFinished();
    }
    verdict.failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    verdict.step = progress();
    verdict.report = QString::fromUtf8(process.readAll());
    if (!finished)
        verdict.report += QStringLiteral("hangs\n");
    else if (process.exitStatus() != QProcess::NormalExit)
        verdict.report += QStringLiteral("crashes\n");
    return verdict;
}

QString Trial::path(const char* name) const
{
    return m_dir.filePath(QLatin1String(name));
}

int Trial::progress() const
{
    QFile file(path("progress"));
    int step = 0;
    if (file.open(QIODevice::ReadOnly))
        file.read(reinterpret_cast<char*>(&step), sizeof step);
    return step;
}

} // namespace soak
