#include "Player.h"

#include "Warnings.h"

namespace soak {

namespace {

QString unexpectedWarning(const Machine& machine)
{
    for (const QString& warning : takeWarnings()) {
        if (!machine.expectsWarning(warning))
            return QStringLiteral("unexpected warning: ") + warning;
    }
    return QString();
}

QString brokenBy(Machine& machine, const Step& step)
{
    machine.perform(step);
    machine.check();
    const QString failure = machine.takeFailure();
    const QString warning = unexpectedWarning(machine);
    return failure.isEmpty() ? warning : failure;
}

} // namespace

Outcome play(Machine& machine, const Steps& steps, const std::function<void(int)>& progress)
{
    for (int i = 0; i < steps.size(); ++i) {
        progress(i);
        const QString broken = brokenBy(machine, steps.at(i));
        if (!broken.isEmpty())
            return {i, broken};
    }
    return {steps.size(), QString()};
}

} // namespace soak
