#include "Models.h"

#include <cstdlib>

namespace test {

namespace {

class FaultyModel : public Model
{
public:
    FaultyModel();

    void check() override;

private:
    int m_level = 0;
    bool m_armed = false;
};

FaultyModel::FaultyModel()
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

void FaultyModel::check()
{
    expect(m_level < 3, "the level stays low");
}

} // namespace

std::unique_ptr<Model> newFaultyModel()
{
    return std::make_unique<FaultyModel>();
}

} // namespace test
