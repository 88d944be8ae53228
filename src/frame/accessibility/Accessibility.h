#pragma once

namespace ui {

/**
 * Tells assistive technology about the library's own kinds of widgets.
 *
 * Their constructors call it, so that nothing is registered when the library is loaded. It takes
 * effect once, until the library is unloaded.
 */
void offerAccessibility();

} // namespace ui
