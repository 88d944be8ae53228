#include "KeypadKey.h"

namespace ui {
namespace keyboard {

namespace {

/// About 8 mm at the 133 dpi of a 7 inch screen of 800 x 480 pixels, where four rows of keys fit
/// below or above a field at any height.
constexpr int leastHeight = 42;
constexpr int labelMargin = 6;

// Slower to start than Qt's default: a finger rests longer on a key than a mouse button.
constexpr int repeatDelay = 500;
constexpr int repeatInterval = 100;

} // namespace

KeypadKey::KeypadKey(const KeyDescription& description, int leastWidth, QWidget* parent)
    : QPushButton(parent)
    , m_leastWidth(leastWidth)
{
    setFocusPolicy(Qt::NoFocus); // the focus belongs to the field
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCheckable(description.action == KeyAction::Shift);
    setAutoRepeat(description.autoRepeat);
    setAutoRepeatDelay(repeatDelay);
    setAutoRepeatInterval(repeatInterval);
    // A repeating key acts when pressed; its release, which is a click too, must not act once more.
    if (description.autoRepeat)
        connect(this, &QPushButton::pressed, this, &KeypadKey::triggered);
    else
        connect(this, &QPushButton::clicked, this, &KeypadKey::triggered);
    setDescription(description);
}

const KeyDescription& KeypadKey::description() const
{
    return m_description;
}

void KeypadKey::setDescription(const KeyDescription& description)
{
    m_description = description;
    setAccessibleName(description.accessibleName);
    setShifted(m_shifted);
}

void KeypadKey::setShifted(bool shifted)
{
    m_shifted = shifted;
    QString label = isLetter() ? typedText() : m_description.label;
    setText(label.replace(QLatin1Char('&'), QLatin1String("&&"))); // no shortcut
}

QString KeypadKey::typedText() const
{
    return m_shifted && isLetter() ? m_description.text.toUpper() : m_description.text;
}

QSize KeypadKey::sizeHint() const
{
    const QSize label = fontMetrics().size(Qt::TextShowMnemonic, text());
    return QSize(m_leastWidth, leastHeight)
        .expandedTo(label + QSize(2 * labelMargin, 2 * labelMargin));
}

QSize KeypadKey::minimumSizeHint() const
{
    return sizeHint();
}

bool KeypadKey::isLetter() const
{
    return !m_description.text.isEmpty() && m_description.text.at(0).isLetter();
}

} // namespace keyboard
} // namespace ui
