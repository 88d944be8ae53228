#include "Machine.h"

namespace soak {

Machine::Machine() = default;
Machine::~Machine() = default;

Steps Machine::steps(quint32 seed, int count) const
{
    QRandomGenerator generator(seed);
    Steps result;
    result.reserve(count);
    while (result.size() < count) {
        int left = generator.bounded(m_totalWeight);
        int action = 0;
        while (left >= m_actions.at(action).weight)
            left -= m_actions.at(action++).weight;
        result.append({action, generator.generate()});
    }
    return result;
}

int Machine::actionCount() const
{
    return m_actions.size();
}

QString Machine::nameOf(int action) const
{
    return m_actions.at(action).name;
}

int Machine::weightOf(int action) const
{
    return m_actions.at(action).weight;
}

Machine::Act Machine::actOf(int action) const
{
    return m_actions.at(action).act;
}

int Machine::actionNamed(const QString& name) const
{
    for (int i = 0; i < m_actions.size(); ++i) {
        if (m_actions.at(i).name == name)
            return i;
    }
    return -1;
}

void Machine::perform(const Step& step)
{
    prepare();
    Values values(step.argument);
    m_actions.at(step.action).act(values);
}

void Machine::prepare() { }

bool Machine::expectsWarning(const QString&) const
{
    return false;
}

QString Machine::takeFailure()
{
    return std::exchange(m_failure, QString());
}

void Machine::add(const QString& name, int weight, const Act& act)
{
    m_actions.append({name, weight, act});
    m_totalWeight += weight;
}

void Machine::expect(bool kept, const QString& promise)
{
    if (!kept && m_failure.isEmpty())
        m_failure = promise;
}

} // namespace soak
