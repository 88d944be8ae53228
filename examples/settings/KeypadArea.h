#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace ui {
class KeypadLineEdit;
}

/**
 * An area that is dragged with a finger and holds fields with keypads.
 *
 * A thin indicator shows where it stands. The field that is being edited is brought into view, as
 * high as its keypad needs, and the keypad has the field's accessible name above its keys.
 */
class KeypadArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit KeypadArea(QWidget* parent = nullptr);

    /// What the area shows, from top to bottom.
    QVBoxLayout* column() const;

private:
    void followFocus(QWidget* old, QWidget* now);
    void makeRoom(ui::KeypadLineEdit* field);
    void takeRoomBack();

    QVBoxLayout* m_column;
};
