#pragma once

#include "KeypadLayout.h"

#include <QPushButton>

namespace ui {
namespace keyboard {

/// A key of a keypad, large enough for a finger.
class KeypadKey : public QPushButton
{
    Q_OBJECT

public:
    /// A key at least \a leastWidth pixels wide.
    KeypadKey(const KeyDescription& description, int leastWidth, QWidget* parent = nullptr);

    const KeyDescription& description() const;

    /// Takes the texts of \a description, as after a change of the language.
    void setDescription(const KeyDescription& description);

    /// Whether a letter key shows and types the capital.
    void setShifted(bool shifted);

    /// What the key types now.
    QString typedText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The key takes effect: when released, or when pressed and then repeatedly if it repeats.
    void triggered();

private:
    bool isLetter() const;

    KeyDescription m_description;
    const int m_leastWidth;
    bool m_shifted = false;
};

} // namespace keyboard
} // namespace ui
