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

    /// Of the focus that is given up at once, a keypad's field takes no notice.
    void ignorePopupFocus();

    void check();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isAcceptable(QString text) const;
    void checkVerdict(bool valid);
    void checkRestored();

    ui::LineEdit* m_field;
    Machine* m_machine;
    bool m_ignorePopupFocus = false;
    bool m_valid = true;
    QString m_saved;
};

} // namespace soak
