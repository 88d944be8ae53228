#pragma once

#include <QObject>
#include <QPointer>

namespace ui {
class LineEdit;
}

namespace soak {

class Machine;

/// What a line edit must remember: watches it from outside, and reports to a machine.
class LineEditModel : public QObject
{
    Q_OBJECT

public:
    /// \a field owns the model; \a machine outlives it.
    LineEditModel(ui::LineEdit* field, Machine* machine);

    /// A field with a keypad takes no notice of the focus that it gives up at once, and its keypad
    /// gives the focus back once.
    void setHasKeypad();

    void check();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isAcceptable(QString text) const;
    void checkVerdict(bool valid);
    void checkRestored();
    bool isKeypadUp() const;

    ui::LineEdit* m_field;
    Machine* m_machine;
    bool m_hasKeypad = false;
    bool m_valid = true;
    QString m_saved;
};

} // namespace soak
