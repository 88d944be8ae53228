#pragma once

#include <ui/keyboard/KeyboardType.h>

#include <QCoreApplication>
#include <QRect>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QLocale;
QT_END_NAMESPACE

namespace ui {
namespace keyboard {

/// What a key of the keypad does.
enum class KeyAction {
    Type, ///< Sends a key event.
    Shift, ///< Makes the next letter a capital.
    SwitchCharacters, ///< Exchanges the letters for digits and symbols.
    Ok,
    Cancel,
};

/// One key: what it does, what it is called and where it lies.
struct KeyDescription
{
    KeyAction action = KeyAction::Type;
    int key = 0; ///< The Qt::Key that it sends.
    QString text; ///< The text that it sends.
    QString label;
    QString accessibleName;
    QRect cells; ///< The columns and rows that it covers.
    int section = -1; ///< The section that it is shown and hidden with; negative for none.
    bool autoRepeat = false;
};

/// The keys of the keypads and their places.
class KeypadLayout
{
    Q_DECLARE_TR_FUNCTIONS(KeypadLayout)

public:
    // The sections of a text keypad, by the numbers of IKeypad::setSectionVisible().
    enum Section { Letters, Digits, Symbols };

    /// The keys of a keypad for \a type; empty if there is no such keypad.
    static QVector<KeyDescription> keys(KeyboardType type, const QLocale& locale);

private:
    static QVector<KeyDescription> integerKeys();
    static QVector<KeyDescription> decimalKeys(const QLocale& locale);
    static QVector<KeyDescription> numberPad();
    static QVector<KeyDescription> textKeys();
    static KeyDescription signKey(const QRect& cells);
    static KeyDescription backspaceKey(const QRect& cells);
    static KeyDescription shiftKey(const QRect& cells);
    static KeyDescription switchKey(const QRect& cells);
    static KeyDescription spaceKey(const QRect& cells);
    static KeyDescription okKey(const QRect& cells);
    static KeyDescription cancelKey(const QRect& cells);
};

} // namespace keyboard
} // namespace ui
