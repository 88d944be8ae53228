#include "WidgetMachine.h"

namespace soak {

WidgetMachine::WidgetMachine(const std::shared_ptr<Stage>& stage)
    : m_stage(stage)
{
}

WidgetMachine::~WidgetMachine()
{
    delete m_widget;
}

void WidgetMachine::prepare()
{
    widget();
}

void WidgetMachine::check()
{
    prepare();
    checkState();
}

bool WidgetMachine::expectsWarning(const QString& warning) const
{
    return warning.startsWith(QLatin1String("Could not parse stylesheet"))
        || warning == QLatin1String("Broken filename passed to function"); // a null character in it
}

QWidget* WidgetMachine::widget()
{
    if (!m_widget) {
        m_widget = create();
        m_stage->place(m_widget, false);
        m_widget->resize(120, 60);
        m_widget->show();
    }
    return m_widget;
}

Stage& WidgetMachine::stage() const
{
    return *m_stage;
}

void addAllUses(WidgetMachine& machine)
{
    addPlacement(machine);
    addLooks(machine);
    addPointer(machine);
    addKeyboard(machine);
}

} // namespace soak
