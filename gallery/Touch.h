#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QAbstractItemView;
class QAbstractScrollArea;
class QCheckBox;
class QComboBox;
class QSlider;
class QToolButton;
class QWidget;
QT_END_NAMESPACE

/// Standard controls in touch size.
namespace touch {

/// Least extent in pixels of what a finger shall hit: about 9 mm on a 7 inch screen of 800 x 480.
constexpr int touchSize = 44;

/// Lets a finger, or the left mouse button, drag and flick the contents of \a area.
void makeScrollable(QAbstractScrollArea* area);

/// Ends the movement that a flick has left, before \a area gets other contents.
void stopScrolling(QAbstractScrollArea* area);

/// Gives the items of \a view touch size.
void makeItemsTall(QAbstractItemView* view);

/// Turning the wheel over \a control scrolls what it stands on instead of changing its value.
void leaveWheelToScrollArea(QWidget* control);

/// Gives \a box and its items touch size and lets it shrink to any width.
void adapt(QComboBox* box);
QComboBox* makeComboBox();

/// A check box that can be hit all over.
QCheckBox* makeCheckBox(const QString& text = QString());

/// A horizontal slider that goes where it is pressed.
QSlider* makeSlider();

/// A button as wide as it may be that is checked to unfold something below it, with an arrow that
/// tells so.
QToolButton* makeFoldButton(const QString& text = QString());

} // namespace touch
