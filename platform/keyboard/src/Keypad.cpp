#include "Keypad.h"

#include "KeypadKey.h"
#include "KeypadLayout.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QPointer>
#include <QScreen>

#include <algorithm>

namespace ui {
namespace keyboard {

namespace {

constexpr int keySpacing = 3;

/// About 9 mm at 133 dpi.
constexpr int fullKeyWidth = 48;

/// What a pop-up's frame around the keypad and its distance from the edge take of the screen.
constexpr int widthAround = 26;

/// Less than the full width where a row of keys would be wider than the screen.
int keyWidth(KeyboardType type)
{
    const int keysInRow = type == KeyboardType::Text ? 10 : 4;
    const int room = QGuiApplication::primaryScreen()->size().width() - widthAround
        - (keysInRow - 1) * keySpacing;
    return qBound(1, room / keysInRow, fullKeyWidth);
}

} // namespace

Keypad::Keypad(KeyboardType type, const QVector<KeyDescription>& keys, QWidget* parent)
    : IKeypad(parent)
    , m_type(type)
{
    setFocusPolicy(Qt::NoFocus);
    setLayoutDirection(Qt::LeftToRight); // rows of letters and number pads are never mirrored
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(keySpacing);
    for (const KeyDescription& key : keys)
        addKey(key);
    for (int column = 0; column < grid->columnCount(); ++column)
        grid->setColumnStretch(column, 1);
    Keypad::setSectionVisible(KeypadLayout::Digits, false);
    Keypad::setSectionVisible(KeypadLayout::Symbols, false);
}

void Keypad::addKey(const KeyDescription& description)
{
    auto* key = new KeypadKey(description, keyWidth(m_type), this);
    const QRect cells = description.cells;
    static_cast<QGridLayout*>(layout())->addWidget(key, cells.y(), cells.x(), cells.height(),
                                                   cells.width());
    connect(key, &KeypadKey::triggered, this, [this, key] { trigger(*key); });
    m_keys.append(key);
}

void Keypad::setSectionVisible(int section, bool visible)
{
    for (KeypadKey* key : qAsConst(m_keys)) {
        if (key->description().section == section && section >= 0)
            key->setVisible(visible);
    }
}

void Keypad::allowEntry(bool allowed)
{
    for (KeypadKey* key : qAsConst(m_keys)) {
        if (key->description().action == KeyAction::Ok)
            key->setEnabled(allowed);
    }
}

void Keypad::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        retranslate();
    IKeypad::changeEvent(event);
}

/// What follows may delete the keypad with the edited field, so each case ends with it.
void Keypad::trigger(const KeypadKey& key)
{
    switch (key.description().action) {
    case KeyAction::Type:
        type(key);
        break;
    case KeyAction::Shift:
        setShifted(!m_shifted);
        break;
    case KeyAction::SwitchCharacters:
        switchCharacters();
        break;
    case KeyAction::Ok:
        Q_EMIT signalOk();
        break;
    case KeyAction::Cancel:
        Q_EMIT signalCancel();
        break;
    }
}

void Keypad::type(const KeypadKey& key)
{
    const QString text = key.typedText();
    const Qt::KeyboardModifiers modifiers =
        text == key.description().text ? Qt::NoModifier : Qt::ShiftModifier;
    QKeyEvent press(QEvent::KeyPress, key.description().key, modifiers, text);
    QKeyEvent release(QEvent::KeyRelease, key.description().key, modifiers, text);
    const QPointer<QWidget> receiver = parentWidget();
    setShifted(false);
    if (receiver)
        QCoreApplication::sendEvent(receiver, &press);
    if (receiver)
        QCoreApplication::sendEvent(receiver, &release);
}

void Keypad::setShifted(bool shifted)
{
    m_shifted = shifted;
    for (KeypadKey* key : qAsConst(m_keys)) {
        key->setShifted(shifted);
        if (key->description().action == KeyAction::Shift)
            key->setChecked(shifted);
    }
}

/// Letters on the one hand, digits and symbols on the other take the same number of rows.
void Keypad::switchCharacters()
{
    const bool toLetters = !isSectionVisible(KeypadLayout::Letters);
    Keypad::setSectionVisible(KeypadLayout::Letters, toLetters);
    Keypad::setSectionVisible(KeypadLayout::Digits, !toLetters);
    Keypad::setSectionVisible(KeypadLayout::Symbols, !toLetters);
}

bool Keypad::isSectionVisible(int section) const
{
    return std::any_of(m_keys.cbegin(), m_keys.cend(), [section](const KeypadKey* key) {
        return key->description().section == section && !key->isHidden();
    });
}

void Keypad::retranslate()
{
    const QVector<KeyDescription> keys = KeypadLayout::keys(m_type, locale());
    for (int i = 0; i < m_keys.size(); ++i)
        m_keys.at(i)->setDescription(keys.at(i));
}

} // namespace keyboard
} // namespace ui
