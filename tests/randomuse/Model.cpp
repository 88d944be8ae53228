#include "Model.h"

namespace test {

Model::Model() = default;
Model::~Model() = default;

Commands Model::commands(quint32 seed, int count) const
{
    QRandomGenerator generator(seed);
    Commands result;
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

const QVector<Model::Action>& Model::actions() const
{
    return m_actions;
}

int Model::actionNamed(const QString& name) const
{
    for (int i = 0; i < m_actions.size(); ++i) {
        if (m_actions.at(i).name == name)
            return i;
    }
    return -1;
}

void Model::perform(const Command& command)
{
    prepare();
    Values values(command.argument);
    m_actions.at(command.action).run(values);
}

void Model::prepare() { }

bool Model::expectsWarning(const QString&) const
{
    return false;
}

QString Model::takeFailure()
{
    return std::exchange(m_failure, QString());
}

void Model::add(const QString& name, int weight, const Function& run)
{
    m_actions.append({name, weight, run});
    m_totalWeight += weight;
}

void Model::expect(bool kept, const QString& invariant)
{
    if (!kept && m_failure.isEmpty())
        m_failure = invariant;
}

} // namespace test
