#pragma once

#include <ui/keyboard/KeyboardType.h>

#include <QString>

class Switch;
namespace ui {
class KeypadLineEdit;
}
QT_BEGIN_NAMESPACE
class QAbstractScrollArea;
class QComboBox;
class QLabel;
class QSlider;
class QToolButton;
class QWidget;
QT_END_NAMESPACE

/// Controls for touch screens. Their sizes are those of TouchStyle.
namespace touch {

/// Least extent in pixels of what is tapped: about 9 mm on a 7 inch screen of 800 x 480.
constexpr int targetSize = 44;

/// Lets a touch, or the left mouse button, drag and flick the contents of \a area, with indicators
/// in place of its scroll bars. A drag that begins on an item of a view selects nothing.
void makeScrollable(QAbstractScrollArea* area);

/// Ends the movement that a flick has left, before \a area gets other contents.
void stopScrolling(QAbstractScrollArea* area);

/// Turning the wheel over \a control scrolls what it stands on instead of changing its value.
void leaveWheelToScrollArea(QWidget* control);

/// Lets \a box shrink to any width, and leaves the wheel to what it stands on.
void adapt(QComboBox* box);
QComboBox* makeComboBox();

/// A switch in the colours of the application's palette, whatever it becomes.
Switch* makeSwitch(const QString& text = QString());

/// Gives \a control grey and white for when it is off or disabled; its own are black.
void setQuietColours(Switch* control);

/// Gives the label of \a control the colour of the application's texts, whatever it becomes.
void followPalette(Switch* control);

QSlider* makeSlider();

/// A label of plain text that begins where the lines of a mirrored layout begin, in whatever
/// language it is.
QLabel* makeLabel(const QString& text = QString());

/// One in bold.
QLabel* makeHeading(const QString& text);

/// As makeLabel(), in one line, which is elided where there is no room for all of it.
QLabel* makeElidedLabel(const QString& text = QString());

/// A button as wide as it may be that is checked to unfold something below it; an arrow tells so.
QToolButton* makeFoldButton(const QString& text = QString());

/// A field whose keypad is titled \a title.
ui::KeypadLineEdit* makeField(ui::keyboard::KeyboardType type, const QString& title);

/// Prepares \a field for an area that is dragged: it comes into view before its keypad opens, which
/// ends the drag that the press on the field has begun.
void prepareForScrolling(ui::KeypadLineEdit* field);

} // namespace touch
