#pragma once

#include "platform_widgets_export.h"

#include <ui/keyboard/KeyboardType.h>

#include <QWidget>

QT_BEGIN_NAMESPACE
class QFrame;
class QLabel;
QT_END_NAMESPACE

namespace ui {

namespace keyboard {
class IKeypad;
}

/**
 * A pop-up window that carries the device's on-screen keypad beside the widget being edited.
 *
 * The pop-up places itself right under the edited widget, or above it where there is no room below.
 * It leaves the keyboard focus with that widget while it is up: key presses that reach the pop-up,
 * from the keypad or from a hardware keyboard, and taps on the edited widget are passed on. The
 * keypad is told the result of a ui::LineEdit, so that it can refuse OK while the text is not
 * acceptable.
 *
 * \image html KeypadPopup.png "The pop-up with the keypads of the desktop's keyboard library"
 *
 * \snippet KeypadPopup.cpp KeypadPopup
 *
 * ui::KeypadLineEdit does all of this by itself. The nearest neighbour in Qt is any QWidget with
 * the window type Qt::Popup, which takes the keyboard from the focused widget instead of feeding
 * it. As there, a press outside the pop-up, but not on the edited widget, closes it. Once the
 * edited widget is hidden, with its window or without, the next iteration of the event loop hides
 * the pop-up too.
 *
 * \anchor looks_KeypadPopup
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | none | the background, light greys, and the subtitle on it, black, whatever the palette |
 * | `ui--KeypadPopup QFrame` | the background and the subtitle, by \c background-color |
 * | `ui--KeypadPopup QLabel` | the subtitle, its text by \c color |
 * | `ui--KeypadPopup QPushButton` | the keys of the desktop stand-in; those of a device are its own |
 *
 * A keyboard library that offers no keypad for the type asked for leaves
 * a pop-up with the subtitle alone.
 */
class PLATFORM_WIDGETS_EXPORT KeypadPopup : public QWidget
{
    Q_OBJECT

public:
    /**
     * Makes a hidden pop-up for the edited widget \a parent, which owns it and must not be null.
     *
     * \a title is the subtitle above the keypad, \a type the keypad's layout. The last argument is
     * ignored. If \a parent has no signal resultValidated(bool), Qt prints a warning and the keypad
     * allows every entry.
     */
    KeypadPopup(QWidget* parent, const QString& title, ui::keyboard::KeyboardType type, int);
    ~KeypadPopup() override;

    /// Sets the line above the keypad to \a text, plain or rich as any QLabel tells.
    void setSubtitleLabel(const QString& text);

    /**
     * Moves the pop-up, measured by its size hint, next to the edited widget.
     *
     * Its top left corner goes under the widget's bottom left corner; if it would reach below the
     * bottom of the screen, its bottom goes to the widget's top edge instead; if fewer than 10
     * pixels would stay free at the right edge of the screen, it is moved left to leave 10. Nothing
     * pulls it back at the left and top edges.
     */
    void locatePopup();

    /**
     * Shows or hides a section of the keypad; the numbers are those of the keyboard library. The
     * pop-up is placed again at once by its new size hint. If it is visible it takes that size too,
     * unless the application has given it a size of its own. Does nothing without a keypad.
     */
    void setKeypadSectionVisible(int section, bool visible);

    /// Gives the focus back to the field once after each showing, and hides the pop-up with the
    /// field.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void signalOk(); ///< The keypad's OK key was pressed. The pop-up stays open.
    void signalCancel(); ///< The keypad's Cancel key was pressed. The pop-up stays open.

protected Q_SLOTS:
    void slotOkButton(); ///< Emits signalOk().
    void slotCancelButton(); ///< Emits signalCancel().

protected:
    /// Passes presses and moves over the field on to it.
    bool event(QEvent* event) override;
    /// Passes every key on to the field.
    void keyPressEvent(QKeyEvent* event) override;
    /// Lets the pop-up close.
    void closeEvent(QCloseEvent* event) override;
    /// Makes ready to give the focus back to the field.
    void showEvent(QShowEvent* event) override;
    /// Does nothing.
    void hideEvent(QHideEvent* event) override;

private:
    PLATFORM_WIDGETS_NO_EXPORT void connectKeypad();
    PLATFORM_WIDGETS_NO_EXPORT QFrame* createFrame();
    PLATFORM_WIDGETS_NO_EXPORT void createSubtitle(QWidget* frame, const QString& title);
    PLATFORM_WIDGETS_NO_EXPORT bool passToTarget(const QMouseEvent& event);

    ui::keyboard::IKeypad* keypadWidget = nullptr;
    QLabel* subtitleLabel = nullptr;
    QWidget* target;
    bool buttonPressed = false; // an OK or a Cancel has been pressed since construction
    bool refocusPending = true; // the focus loss that comes with the next showing is undone
};

} // namespace ui
