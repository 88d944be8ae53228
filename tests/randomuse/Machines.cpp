#include "Machines.h"

#include "models/Crowd.h"
#include "models/NewMachines.h"

namespace soak {

namespace {

struct Entry
{
    const char* name;
    std::unique_ptr<WidgetMachine> (*create)(const std::shared_ptr<Stage>& stage);
};

constexpr Entry widgets[] = {
    {"frame", newFrameMachine},         {"gridbutton", newGridButtonMachine},
    {"indicator", newIndicatorMachine}, {"battery", newBatteryMachine},
    {"switch", newSwitchMachine},       {"lineedit", newLineEditMachine},
    {"keypad", newKeypadFieldMachine},  {"crumbs", newCrumbsMachine},
    {"browser", newBrowserMachine},
};

constexpr char loop[] = "loop";
constexpr char faulty[] = "faulty"; // no widget, and not in the list
constexpr char together[] = "together";

std::unique_ptr<Machine> newCrowd()
{
    auto crowd = std::make_unique<Crowd>();
    const auto stage = std::make_shared<Stage>();
    for (const Entry& entry : widgets)
        crowd->join(QLatin1String(entry.name), entry.create(stage));
    crowd->join(QLatin1String(loop), newLoopMachine());
    return crowd;
}

} // namespace

QStringList machineNames()
{
    QStringList names;
    for (const Entry& entry : widgets)
        names.append(QLatin1String(entry.name));
    return names << QLatin1String(loop) << QLatin1String(together);
}

std::unique_ptr<Machine> newMachine(const QString& name)
{
    if (name == QLatin1String(loop))
        return newLoopMachine();
    if (name == QLatin1String(faulty))
        return newFaultyMachine();
    if (name == QLatin1String(together))
        return newCrowd();
    for (const Entry& entry : widgets) {
        if (name == QLatin1String(entry.name))
            return entry.create(std::make_shared<Stage>());
    }
    return nullptr;
}

} // namespace soak
