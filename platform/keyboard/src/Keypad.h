#pragma once

#include <ui/keyboard/IKeypad.h>

#include <QVector>

namespace ui {
namespace keyboard {

class KeypadKey;
struct KeyDescription;

/// A keypad of push buttons that send key events to the keypad's parent.
class Keypad : public IKeypad
{
    Q_OBJECT

public:
    /// A keypad with \a keys, the layout \a type in the keypad's locale.
    Keypad(KeyboardType type, const QVector<KeyDescription>& keys, QWidget* parent);

    void setSectionVisible(int section, bool visible) override;

public Q_SLOTS:
    void allowEntry(bool allowed) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void addKey(const KeyDescription& description);
    void trigger(const KeypadKey& key);
    void type(const KeypadKey& key);
    void setShifted(bool shifted);
    void switchCharacters();
    bool isSectionVisible(int section) const;
    void retranslate();

    const KeyboardType m_type;
    QVector<KeypadKey*> m_keys; // in the order of the layout
    bool m_shifted = false;
};

} // namespace keyboard
} // namespace ui
