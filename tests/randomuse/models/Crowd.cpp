#include "Crowd.h"

#include <algorithm>

namespace soak {

void Crowd::join(const QString& name, std::unique_ptr<Machine> machine)
{
    for (int i = 0; i < machine->actionCount(); ++i) {
        add(name + QLatin1Char('.') + machine->nameOf(i), machine->weightOf(i), machine->actOf(i));
    }
    m_members.push_back({name, std::move(machine)});
}

void Crowd::prepare()
{
    for (const Member& member : m_members)
        member.machine->prepare();
}

void Crowd::check()
{
    for (const Member& member : m_members) {
        member.machine->check();
        const QString failure = member.machine->takeFailure();
        expect(failure.isEmpty(), member.name + QStringLiteral(": ") + failure);
    }
}

bool Crowd::expectsWarning(const QString& warning) const
{
    return std::any_of(m_members.begin(), m_members.end(), [&](const Member& member) {
        return member.machine->expectsWarning(warning);
    });
}

} // namespace soak
