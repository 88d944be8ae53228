#pragma once

#include <ui/keyboard/KeyboardType.h>

#include <QStringList>
#include <QWidget>

class Switch;
class QBoxLayout;
class QLabel;
class QValidator;

namespace ui {
class KeypadLineEdit;
}

/// The settings of a heating controller, on one screen.
class SettingsPanel : public QWidget
{
    Q_OBJECT

public:
    /// Updates are looked for below \a updateFolders; \a dark says which theme is the present one.
    SettingsPanel(const QStringList& updateFolders, bool dark, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user asks for the dark theme, or for the light one.
    void themeChosen(bool dark);

private:
    QLayout* makeHeader();
    QWidget* makeHeating();
    QWidget* makeNetwork();
    QWidget* makeDisplay(bool dark);
    QWidget* makeUpdate();

    Switch* addSwitch(QBoxLayout* card, const QString& title, const char* name, bool on);
    ui::KeypadLineEdit* addField(QBoxLayout* card, const QString& title, const char* name,
                                 ui::keyboard::KeyboardType type, QValidator* validator,
                                 const QString& text);
    void chooseUpdate();

    QStringList m_updateFolders;
    QLabel* m_report; // what has been changed last
    QLabel* m_update; // which update has been chosen
};
