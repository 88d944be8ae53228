#include "NewMachines.h"

#include <cstdlib>

namespace soak {

namespace {

class FaultyMachine : public Machine
{
public:
    FaultyMachine();

    void check() override;

private:
    int m_level = 0;
    bool m_armed = false;
};

FaultyMachine::FaultyMachine()
{
    add("nothing", 1000, [](Values&) {});
    add("rise", 20, [this](Values&) { ++m_level; });
    add("fall", 20, [this](Values&) { --m_level; });
    add("arm", 0, [this](Values&) { m_armed = true; });
    add("fire", 0, [this](Values&) {
        if (m_armed)
            std::abort();
    });
    add("warn", 0, [](Values&) { qWarning("nobody expects this"); });
}

void FaultyMachine::check()
{
    expect(m_level < 3, "the level stays low");
}

} // namespace

std::unique_ptr<Machine> newFaultyMachine()
{
    return std::make_unique<FaultyMachine>();
}

} // namespace soak
