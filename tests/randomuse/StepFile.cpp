#include "StepFile.h"

#include <QFile>

namespace soak {

QStringList toLines(const Steps& steps, const Machine& machine)
{
    QStringList lines;
    lines.reserve(steps.size());
    for (const Step& step : steps)
        lines.append(machine.nameOf(step.action) + QLatin1Char(' ')
                     + QString::number(step.argument));
    return lines;
}

Steps fromLines(const QStringList& lines, const Machine& machine)
{
    Steps steps;
    for (const QString& line : lines) {
        const int action = machine.actionNamed(line.section(QLatin1Char(' '), 0, 0));
        if (action >= 0)
            steps.append({action, line.section(QLatin1Char(' '), 1).toUInt()});
    }
    return steps;
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

} // namespace soak
