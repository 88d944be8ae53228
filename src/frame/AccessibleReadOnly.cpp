#include "AccessibleReadOnly.h"

#include <QLabel>

namespace ui {

AccessibleReadOnly::AccessibleReadOnly(QWidget* widget, const Traits& traits)
    : QAccessibleWidget(widget, traits.role)
    , m_traits(traits)
{
}

void* AccessibleReadOnly::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface && m_traits.percentage)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleReadOnly::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    return state;
}

/// What the application says of the widget comes first.
QString AccessibleReadOnly::text(QAccessible::Text kind) const
{
    const QString given = QAccessibleWidget::text(kind);
    return given.isEmpty() ? m_traits.text(*widget(), kind) : given;
}

/// A label's with its buddy, as Qt tells them of its own labels.
QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleReadOnly::relations(QAccessible::Relation match) const
{
    auto relations = QAccessibleWidget::relations(match);
    const auto* label = qobject_cast<const QLabel*>(widget());
    QAccessibleInterface* buddy =
        label ? QAccessible::queryAccessibleInterface(label->buddy()) : nullptr;
    if (buddy && match.testFlag(QAccessible::Labelled))
        relations.append({buddy, QAccessible::Labelled});
    return relations;
}

QStringList AccessibleReadOnly::actionNames() const
{
    const QStringList names = QAccessibleWidget::actionNames();
    return m_traits.press ? QStringList(pressAction()) + names : names;
}

void AccessibleReadOnly::doAction(const QString& actionName)
{
    if (!m_traits.press || actionName != pressAction())
        QAccessibleWidget::doAction(actionName);
    else if (widget()->isEnabled())
        m_traits.press(*widget()); // may delete the widget, and this with it
}

QVariant AccessibleReadOnly::currentValue() const
{
    return m_traits.percentage(*widget());
}

void AccessibleReadOnly::setCurrentValue(const QVariant&)
{
    // The value is shown, not set by the user.
}

QVariant AccessibleReadOnly::minimumValue() const
{
    return 0;
}

QVariant AccessibleReadOnly::maximumValue() const
{
    return 100;
}

QVariant AccessibleReadOnly::minimumStepSize() const
{
    return 1;
}

} // namespace ui
