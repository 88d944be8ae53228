#pragma once

#include "GalleryPage.h"

#include <ui/keyboard/KeyboardType.h>

namespace ui {
class KeypadLineEdit;
}
QT_BEGIN_NAMESPACE
class QBoxLayout;
class QGridLayout;
class QLabel;
class QValidator;
QT_END_NAMESPACE

/// A settings form of keypad line edits; those at the bottom show where a keypad goes for want of room.
class TextEntryPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TextEntryPage(QWidget* parent = nullptr);

private:
    ui::KeypadLineEdit* makeAddress();
    ui::KeypadLineEdit* makeTemperature();
    ui::KeypadLineEdit* makeName();
    ui::KeypadLineEdit* makePin();
    ui::KeypadLineEdit* makeNumber(const QString& title, int number, int highest);

    /// A field whose keypad is titled \a title; takes \a validator.
    ui::KeypadLineEdit* makeField(const QString& title, ui::keyboard::KeyboardType type,
                                  QValidator* validator);
    static void addRow(QGridLayout* form, ui::KeypadLineEdit* field);
    static void addPair(QBoxLayout* row, ui::KeypadLineEdit* field);

    QLabel* m_report;
};
