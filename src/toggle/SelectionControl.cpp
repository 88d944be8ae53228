#include "SelectionControl.h"

#include <QPointer>

SelectionControl::SelectionControl(QWidget* parent)
    : QAbstractButton(parent)
{
    setObjectName(QStringLiteral("SelectionControl"));
    setCheckable(true);
}

Qt::CheckState SelectionControl::checkState() const
{
    return isChecked() ? Qt::Checked : Qt::Unchecked;
}

void SelectionControl::checkStateSet()
{
    const Qt::CheckState state = checkState();
    const QPointer<SelectionControl> self(this);
    Q_EMIT stateChanged(state);
    if (self) // a slot may have deleted the control
        toggle(state);
}

void SelectionControl::nextCheckState()
{
    QAbstractButton::nextCheckState();
    checkStateSet();
}
