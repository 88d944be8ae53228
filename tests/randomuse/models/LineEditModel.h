#pragma once

#include "WidgetModel.h"

namespace ui {
class LineEdit;
}

namespace test {

/// What a line edit must remember: watches it from outside, and reports to a model.
class LineEditWatcher : public QObject
{
    Q_OBJECT

public:
    /// \a field owns the model; \a model outlives it.
    LineEditWatcher(ui::LineEdit* field, Model* model);

    /// A field with a keypad takes no notice of the focus that it gives up at once, and its keypad
    /// gives the focus back once.
    void setHasKeypad();

    void check();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isAcceptable(QString text) const;
    void checkValidity(bool valid);
    void checkRestored();
    bool isKeypadUp() const;

    ui::LineEdit* m_field;
    Model* m_model;
    bool m_hasKeypad = false;
    bool m_valid = true;
    QString m_saved;
};

/// Adds what can be done to any ui::LineEdit, which is the model's widget.
void addLineEditCommands(WidgetModel& model);

} // namespace test
