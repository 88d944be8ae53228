#include "Models.h"

#include "AllClasses.h"

#include <algorithm>
#include <vector>

namespace test {

namespace {

struct Entry
{
    const char* name;
    const char* classes; ///< That the model uses, separated by spaces.
    std::unique_ptr<WidgetModel> (*create)(const std::shared_ptr<TestWindows>& windows);
};

constexpr Entry widgets[] = {
    {"frame", "CRoundedFrame", newFrameModel},
    {"gridbutton", "CGridArrangedButton", newGridButtonModel},
    {"indicator", "ScrollIndicatorBar", newIndicatorModel},
    {"battery", "CBatteryStatusWidget", newBatteryModel},
    {"switch", "Switch SelectionControl Animator", newSwitchModel},
    {"lineedit", "LineEdit", newLineEditModel},
    {"keypad", "KeypadLineEdit KeypadPopup", newKeypadFieldModel},
    {"crumbs", "BreadCrumbsWidget ClickableLabel", newCrumbsModel},
    {"browser", "FileBrowserWidget FileSystemModel", newBrowserModel},
};

constexpr char loop[] = "loop";
constexpr char faulty[] = "faulty"; // no widget, and not in the list
constexpr char together[] = "together";

/// Several models with their widgets in the same windows: each has to keep its invariants among the
/// others.
class CombinedModel : public Model
{
public:
    void join(const QString& name, std::unique_ptr<Model> model);

    void prepare() override;
    void check() override;
    bool expectsWarning(const QString& warning) const override;

private:
    struct Member
    {
        QString name;
        std::unique_ptr<Model> model;
    };

    std::vector<Member> m_members;
};

void CombinedModel::join(const QString& name, std::unique_ptr<Model> model)
{
    for (const Action& action : model->actions())
        add(name + QLatin1Char('.') + action.name, action.weight, action.run);
    m_members.push_back({name, std::move(model)});
}

void CombinedModel::prepare()
{
    for (const Member& member : m_members)
        member.model->prepare();
}

void CombinedModel::check()
{
    for (const Member& member : m_members) {
        member.model->check();
        const QString failure = member.model->takeFailure();
        expect(failure.isEmpty(), member.name + QStringLiteral(": ") + failure);
    }
}

bool CombinedModel::expectsWarning(const QString& warning) const
{
    return std::any_of(m_members.begin(), m_members.end(),
                       [&](const Member& member) { return member.model->expectsWarning(warning); });
}

std::unique_ptr<Model> newCombinedModel()
{
    auto combined = std::make_unique<CombinedModel>();
    const auto windows = std::make_shared<TestWindows>();
    for (const Entry& entry : widgets)
        combined->join(QLatin1String(entry.name), entry.create(windows));
    combined->join(QLatin1String(loop), newLoopModel());
    return combined;
}

} // namespace

QStringList modelNames()
{
    QStringList names;
    for (const Entry& entry : widgets)
        names.append(QLatin1String(entry.name));
    return names << QLatin1String(loop) << QLatin1String(together);
}

QString classesWithoutModel()
{
    QStringList covered{QStringLiteral("CAnimationFwdRevLoop")};
    for (const Entry& entry : widgets)
        covered += QString::fromLatin1(entry.classes).split(QLatin1Char(' '));
    return uncovered(covered);
}

std::unique_ptr<Model> newModel(const QString& name)
{
    if (name == QLatin1String(loop))
        return newLoopModel();
    if (name == QLatin1String(faulty))
        return newFaultyModel();
    if (name == QLatin1String(together))
        return newCombinedModel();
    for (const Entry& entry : widgets) {
        if (name == QLatin1String(entry.name))
            return entry.create(std::make_shared<TestWindows>());
    }
    return nullptr;
}

} // namespace test
