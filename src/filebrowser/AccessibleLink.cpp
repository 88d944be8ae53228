#include "AccessibleLink.h"

#include "../frame/AccessibleReadOnly.h"
#include "ClickableLabel.h"

namespace ui {

namespace {

/// The label's text as it is painted.
QString linkText(const QWidget& label, QAccessible::Text kind)
{
    return kind == QAccessible::Name ? static_cast<const ClickableLabel&>(label).text() : QString();
}

void click(QWidget& label)
{
    Q_EMIT static_cast<ClickableLabel&>(label).clicked();
}

} // namespace

QAccessibleInterface* makeAccessibleLink(ClickableLabel* label)
{
    return new AccessibleReadOnly(label, {QAccessible::Link, linkText, nullptr, click});
}

} // namespace ui
