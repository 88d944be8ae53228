#pragma once

#include <QAccessible>

class ClickableLabel;

namespace ui {

/// A clickable label as a link that can be pressed, and else what any label is to assistive
/// technology.
QAccessibleInterface* makeAccessibleLink(ClickableLabel* label);

} // namespace ui
