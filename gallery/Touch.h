#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QAbstractScrollArea;
QT_END_NAMESPACE

namespace touch {

/// Least extent in pixels of what a finger shall hit: about 9 mm on a 7 inch screen of 800 x 480.
constexpr int fingerSize = 44;

/// Lets a finger, or the left mouse button, drag and flick the contents of \a area.
void makeScrollable(QAbstractScrollArea* area);

} // namespace touch
