#pragma once

#include "WidgetMachine.h"

#include <vector>

namespace soak {

/// Several machines with their widgets on one stage: each has to keep its promises among the others.
class Crowd : public Machine
{
public:
    void join(const QString& name, std::unique_ptr<Machine> machine);

    void prepare() override;
    void check() override;
    bool expectsWarning(const QString& warning) const override;

private:
    struct Member
    {
        QString name;
        std::unique_ptr<Machine> machine;
    };

    std::vector<Member> m_members;
};

} // namespace soak
