#include "AccessibleLink.h"

#include "ClickableLabel.h"

namespace ui {

AccessibleLink::AccessibleLink(ClickableLabel* label)
    : QAccessibleWidget(label, QAccessible::Link)
{
}

QAccessible::State AccessibleLink::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    return state;
}

/// The label's text as it is painted, unless the application gave it another name.
QString AccessibleLink::text(QAccessible::Text kind) const
{
    const QString given = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && given.isEmpty() ? label()->text() : given;
}

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleLink::relations(QAccessible::Relation match) const
{
    auto relations = QAccessibleWidget::relations(match);
    QAccessibleInterface* buddy = QAccessible::queryAccessibleInterface(label()->buddy());
    if (buddy && match.testFlag(QAccessible::Labelled))
        relations.append({buddy, QAccessible::Labelled});
    return relations;
}

QStringList AccessibleLink::actionNames() const
{
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void AccessibleLink::doAction(const QString& actionName)
{
    if (actionName != pressAction())
        QAccessibleWidget::doAction(actionName);
    else if (widget()->isEnabled())
        Q_EMIT label()->clicked(); // may delete the label, and this with it
}

ClickableLabel* AccessibleLink::label() const
{
    return static_cast<ClickableLabel*>(widget());
}

} // namespace ui
