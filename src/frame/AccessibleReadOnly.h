#pragma once

#include <QAccessibleWidget>

namespace ui {

/**
 * What assistive technology learns of a widget that shows something and is not edited: all that it
 * would learn of any widget, and what the widget's class adds.
 *
 * One class for all of them. A class derived from QAccessibleWidget brings a virtual table of some
 * forty functions, each with a relocation whenever the library is loaded.
 */
class AccessibleReadOnly : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /// What a class of widgets adds.
    struct Traits
    {
        QAccessible::Role role;
        /// What the application has given no text for.
        QString (*text)(const QWidget& widget, QAccessible::Text kind);
        int (*percentage)(const QWidget& widget); ///< Null if it shows no value.
        void (*press)(QWidget& widget); ///< Null if it cannot be pressed.
    };

    AccessibleReadOnly(QWidget* widget, const Traits& traits);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match = QAccessible::AllRelations) const override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

private:
    const Traits m_traits;
};

} // namespace ui
