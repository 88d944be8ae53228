#include "KeypadLayout.h"

#include <QLocale>

namespace ui {
namespace keyboard {

namespace {

// A text keypad is laid out in half keys, so that a row of letters can stand off by half a key.
constexpr int characterColumns = 2;

/// The key that types \a character. Qt's key codes of characters are their capitals' code points.
KeyDescription characterKey(QChar character, const QRect& cells, int section = -1)
{
    KeyDescription key;
    key.key = character.toUpper().unicode();
    key.text = character;
    key.label = character;
    key.accessibleName = character;
    key.cells = cells;
    key.section = section;
    return key;
}

KeyDescription commandKey(KeyAction action, const QString& label, const QString& name,
                          const QRect& cells)
{
    KeyDescription key;
    key.action = action;
    key.label = label;
    key.accessibleName = name;
    key.cells = cells;
    return key;
}

QVector<KeyDescription> characterRow(const QString& characters, int column, int row, int section)
{
    QVector<KeyDescription> keys;
    for (const QChar character : characters) {
        keys.append(characterKey(character, QRect(column, row, characterColumns, 1), section));
        column += characterColumns;
    }
    return keys;
}

} // namespace

QVector<KeyDescription> KeypadLayout::keys(KeyboardType type, const QLocale& locale)
{
    switch (type) {
    case KeyboardType::Integer:
        return integerKeys();
    case KeyboardType::Decimal:
        return decimalKeys(locale);
    case KeyboardType::Text:
        return textKeys();
    }
    return {};
}

QVector<KeyDescription> KeypadLayout::integerKeys()
{
    return numberPad() << characterKey(QLatin1Char('0'), QRect(1, 3, 2, 1), 0);
}

QVector<KeyDescription> KeypadLayout::decimalKeys(const QLocale& locale)
{
    const QString decimalPoint = locale.decimalPoint(); // a character with Qt 5, a text with Qt 6
    KeyDescription separator = characterKey(decimalPoint.at(0), QRect(2, 3, 1, 1), 0);
    separator.accessibleName = tr("Decimal separator");
    return numberPad() << characterKey(QLatin1Char('0'), QRect(1, 3, 1, 1), 0) << separator;
}

/// What both number keypads have in common: all but the keys right of the sign.
QVector<KeyDescription> KeypadLayout::numberPad()
{
    QVector<KeyDescription> keys;
    for (int digit = 1; digit <= 9; ++digit) {
        const QRect cell((digit - 1) % 3, 2 - (digit - 1) / 3, 1, 1); // 7 8 9 on top
        keys.append(characterKey(QLatin1Char(char('0' + digit)), cell, 0));
    }
    return keys << signKey(QRect(0, 3, 1, 1)) << backspaceKey(QRect(3, 0, 1, 1))
                << cancelKey(QRect(3, 1, 1, 1)) << okKey(QRect(3, 2, 1, 2));
}

QVector<KeyDescription> KeypadLayout::textKeys()
{
    QVector<KeyDescription> keys;
    keys << characterRow(QStringLiteral("qwertyuiop"), 0, 0, Letters)
         << characterRow(QStringLiteral("asdfghjkl"), 1, 1, Letters) << shiftKey(QRect(0, 2, 3, 1))
         << characterRow(QStringLiteral("zxcvbnm"), 3, 2, Letters)
         << characterKey(QLatin1Char('.'), QRect(17, 2, 3, 1), Letters)
         << characterRow(QStringLiteral("1234567890"), 0, 3, Digits)
         << characterRow(QStringLiteral("!@#%&*()=_"), 0, 4, Symbols)
         << characterRow(QStringLiteral("-+/:;,.'\"?"), 0, 5, Symbols);
    return keys << switchKey(QRect(0, 6, 3, 1)) << spaceKey(QRect(3, 6, 6, 1))
                << backspaceKey(QRect(9, 6, 3, 1)) << cancelKey(QRect(12, 6, 4, 1))
                << okKey(QRect(16, 6, 4, 1));
}

KeyDescription KeypadLayout::signKey(const QRect& cells)
{
    // Types a hyphen, which Qt reads as a sign in every locale, whatever the locale writes.
    KeyDescription key = characterKey(QLatin1Char('-'), cells, 0);
    key.label = QChar(0x2212);
    key.accessibleName = tr("Minus");
    return key;
}

KeyDescription KeypadLayout::backspaceKey(const QRect& cells)
{
    KeyDescription key = commandKey(KeyAction::Type, QChar(0x232b), tr("Backspace"), cells);
    key.key = Qt::Key_Backspace;
    key.text = QLatin1Char('\b');
    key.autoRepeat = true;
    return key;
}

KeyDescription KeypadLayout::shiftKey(const QRect& cells)
{
    KeyDescription key = commandKey(KeyAction::Shift, QChar(0x21e7), tr("Shift"), cells);
    key.section = Letters;
    return key;
}

KeyDescription KeypadLayout::switchKey(const QRect& cells)
{
    return commandKey(KeyAction::SwitchCharacters, tr("abc/123"),
                      tr("Letters or digits and symbols"), cells);
}

KeyDescription KeypadLayout::spaceKey(const QRect& cells)
{
    KeyDescription key = characterKey(QLatin1Char(' '), cells);
    key.label = tr("Space");
    key.accessibleName = tr("Space");
    return key;
}

KeyDescription KeypadLayout::okKey(const QRect& cells)
{
    return commandKey(KeyAction::Ok, tr("OK"), tr("OK"), cells);
}

KeyDescription KeypadLayout::cancelKey(const QRect& cells)
{
    return commandKey(KeyAction::Cancel, tr("Cancel"), tr("Cancel"), cells);
}

} // namespace keyboard
} // namespace ui
