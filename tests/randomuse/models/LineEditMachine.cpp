#include "LineEditModel.h"
#include "LineEditUses.h"
#include "NewMachines.h"

#include <ui/LineEdit.h>

namespace soak {

namespace {

class LineEditMachine : public WidgetMachine
{
public:
    explicit LineEditMachine(const std::shared_ptr<Stage>& stage);

protected:
    QWidget* create() override;
    void checkState() override;

private:
    QPointer<LineEditModel> m_model;
};

LineEditMachine::LineEditMachine(const std::shared_ptr<Stage>& stage)
    : WidgetMachine(stage)
{
    addLineEditUses(*this);
    addAllUses(*this);
}

QWidget* LineEditMachine::create()
{
    auto* field = new ui::LineEdit;
    m_model = new LineEditModel(field, this);
    return field;
}

void LineEditMachine::checkState()
{
    m_model->check();
}

} // namespace

std::unique_ptr<WidgetMachine> newLineEditMachine(const std::shared_ptr<Stage>& stage)
{
    return std::make_unique<LineEditMachine>(stage);
}

} // namespace soak
