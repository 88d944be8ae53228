#pragma once

#include <QAccessibleWidget>

class ClickableLabel;

namespace ui {

/// A clickable label as a link that can be pressed, and else what any label is to assistive
/// technology.
class AccessibleLink : public QAccessibleWidget
{
public:
    explicit AccessibleLink(ClickableLabel* label);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match = QAccessible::AllRelations) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    ClickableLabel* label() const;
};

} // namespace ui
