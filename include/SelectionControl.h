#pragma once

#include "platform_widgets_export.h"

#include <QAbstractButton>

/**
 * Base of the checkable controls that draw themselves, such as Switch.
 *
 * It turns the checked flag of QAbstractButton into a Qt::CheckState, reports every setting of it
 * by stateChanged() and hands it to toggle(Qt::CheckState). A subclass paints the control and
 * implements that function, typically to start a transition:
 *
 * \image html SelectionControl.png "The sample below: a control that paints itself"
 *
 * \snippet Lamp.h SelectionControl
 * \snippet Lamp.cpp SelectionControl
 *
 * The nearest class of Qt is QCheckBox. Unlike it, this one leaves all painting to the subclass,
 * has no partially checked state, and also reports a state that is set again to what it was.
 *
 * Clicks, keys, shortcuts, groups and accessibility are those of QAbstractButton.
 *
 * \anchor looks_SelectionControl
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | palette roles | those that the subclass paints with |
 * | `#SelectionControl` | every control that has not been given another object name |
 *
 * Order of signals:
 * - a click: toggled(), stateChanged(), toggle(Qt::CheckState), released(), clicked();
 * - setChecked(): stateChanged(), toggle(Qt::CheckState), then toggled() if the state is new;
 * - where QAbstractButton changes the state on its own account, as click(), auto-repeat and the
 *   group that unchecks a button do: as setChecked(), then stateChanged() and
 *   toggle(Qt::CheckState) once more.
 *
 * The state that toggle(Qt::CheckState) receives is the one that the preceding stateChanged()
 * carried. To refuse a state, set the former one in a slot of toggled() or clicked().
 */
class PLATFORM_WIDGETS_EXPORT SelectionControl : public QAbstractButton
{
    Q_OBJECT

public:
    /// Makes a checkable, unchecked control with the object name "SelectionControl".
    explicit SelectionControl(QWidget* parent = nullptr);

    /// Qt::Checked or Qt::Unchecked, after isChecked(); never Qt::PartiallyChecked.
    Qt::CheckState checkState() const;

    /// The slot toggle() inverts the state.
    using QAbstractButton::toggle;

    /// Reacts to the new \a state, once for every stateChanged().
    virtual void toggle(Qt::CheckState state) = 0;

Q_SIGNALS:
    /**
     * The state has been set to \a state, a Qt::CheckState, by the user or by setChecked().
     *
     * The control may be deleted in a slot if the user has set it. QAbstractButton is not finished
     * with it if the program has, by setChecked() or click(): use deleteLater() then, and in
     * toggled() always.
     */
    void stateChanged(int state);

protected:
    /// Publishes the state: emits stateChanged() and calls toggle(Qt::CheckState).
    void checkStateSet() override;

    /// Inverts the state, as a click does, and publishes it.
    void nextCheckState() override;
};
