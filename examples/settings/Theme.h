#pragma once

class QApplication;

/// The two looks of the application: one style sheet, in which each theme replaces names by
/// colours.
namespace Theme {

/// Gives the whole application the dark or the light theme.
void apply(QApplication& application, bool dark);

} // namespace Theme
