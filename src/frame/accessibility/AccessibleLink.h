#pragma once

#include <QAccessibleWidget>

class ClickableLabel;

namespace ui {

/// A clickable label as a link that can be pressed.
class AccessibleLink : public QAccessibleWidget
{
public:
    explicit AccessibleLink(ClickableLabel* label);

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    ClickableLabel* label() const;
};

} // namespace ui
