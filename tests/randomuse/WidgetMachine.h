#pragma once

#include "Machine.h"
#include "Stage.h"

#include <memory>

namespace soak {

/**
 * A machine for a widget on a stage. Whatever deletes the widget, there is a new one for the next
 * action, and the model begins afresh with it.
 */
class WidgetMachine : public Machine
{
public:
    ~WidgetMachine() override;

    void prepare() final;
    void check() final;
    bool expectsWarning(const QString& warning) const override;

    /// The widget, made and shown now if there is none.
    QWidget* widget();
    Stage& stage() const;

protected:
    explicit WidgetMachine(const std::shared_ptr<Stage>& stage);

    /// Makes the widget, without a parent, and sets the model to what a new one promises.
    virtual QWidget* create() = 0;
    /// Compares widget() with the model.
    virtual void checkState() = 0;

private:
    std::shared_ptr<Stage> m_stage;
    QPointer<QWidget> m_widget;
};

/// What a machine for any widget can do, in groups.
void addPlacement(WidgetMachine& machine); ///< Show, hide, resize, reparent, delete.
void addLooks(WidgetMachine& machine); ///< Style sheets, palette, font, direction, painting.
void addPointer(WidgetMachine& machine); ///< Mouse and wheel, inside and outside.
void addKeyboard(WidgetMachine& machine); ///< Keys and focus.
void addAllUses(WidgetMachine& machine);

} // namespace soak
