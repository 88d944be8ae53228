#include "LineEditModel.h"
#include "LineEditUses.h"
#include "NewMachines.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QAbstractButton>
#include <QApplication>
#include <QtTest/qtestmouse.h>
#include <QWindow>

#include <algorithm>

using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace soak {

namespace {

/// When the keypad of a field is up: while it is edited, and not any longer.
class KeypadFieldMachine : public WidgetMachine
{
public:
    explicit KeypadFieldMachine(const std::shared_ptr<Stage>& stage);

protected:
    QWidget* create() override;
    void checkState() override;

private:
    KeypadLineEdit& field()
    {
        return static_cast<KeypadLineEdit&>(*widget());
    }
    bool isUp();
    void usePopup(Values& values);
    void tapKeypad(Values& values);
    void edit();
    void end(const QString& key);
    void tapOutside();

    QPointer<LineEditModel> m_model;
    QPointer<KeypadPopup> m_seen;
    int m_type = 0;
    bool m_refocused =
        false; ///< Whether the pop-up has given back the focus that its showing took.
};

bool isOnlyPopup(const QWidget* popup)
{
    const auto windows = QApplication::topLevelWidgets();
    return std::none_of(windows.begin(), windows.end(), [popup](const QWidget* window) {
        return window != popup && window->windowType() == Qt::Popup && window->isVisible();
    });
}

KeypadFieldMachine::KeypadFieldMachine(const std::shared_ptr<Stage>& stage)
    : WidgetMachine(stage)
{
    add("showKeypad", 3, [this](Values&) { field().showKeypad(); });
    add("hideKeypad", 3, [this](Values&) { field().hideKeypad(); });
    add("usePopup", 2, [this](Values& v) { usePopup(v); });
    add("tapKeypad", 6, [this](Values& v) { tapKeypad(v); });
    add("edit", 4, [this](Values&) { edit(); });
    add("ok", 2, [this](Values&) { end(QStringLiteral("OK")); });
    add("cancelByKeypad", 2, [this](Values&) { end(QStringLiteral("Cancel")); });
    add("tapOutside", 2, [this](Values&) { tapOutside(); });
    addLineEditUses(*this);
    addAllUses(*this);
}

QWidget* KeypadFieldMachine::create()
{
    m_type = (m_type + 1) % 3;
    auto* created = new KeypadLineEdit(nullptr, KeyboardType(m_type));
    m_model = new LineEditModel(created, this);
    m_model->setHasKeypad();
    QObject::connect(created, &KeypadLineEdit::startKeypad, created, [this, created] {
        expect(created->keypad() && created->keypad()->isVisible(),
               "startKeypad() follows the show");
        m_refocused = created->hasFocus() && isOnlyPopup(created->keypad());
    });
    return created;
}

bool KeypadFieldMachine::isUp()
{
    return field().keypad() && field().keypad()->isVisible();
}

void KeypadFieldMachine::usePopup(Values& values)
{
    KeypadPopup* popup = field().keypad();
    if (!popup)
        return;
    switch (values.below(5)) {
    case 0:
        delete popup;
        break;
    case 1:
        popup->setKeypadSectionVisible(values.integer(), values.boolean());
        break;
    case 2:
        popup->setSubtitleLabel(values.text());
        break;
    case 3:
        popup->locatePopup();
        break;
    default:
        popup->close();
    }
}

void KeypadFieldMachine::tapKeypad(Values& values)
{
    if (!isUp())
        return;
    const auto keys = field().keypad()->findChildren<QAbstractButton*>();
    if (!keys.isEmpty())
        keys.at(values.below(keys.size()))->click();
}

/// The field gets the focus, and one turn later the keypad is up.
void KeypadFieldMachine::edit()
{
    turnEventLoop();
    field().activateWindow();
    turnEventLoop();
    if (!field().isVisible() || !field().isEnabled() || field().hasFocus()
        || !field().isActiveWindow() || QApplication::activePopupWidget())
        return;
    field().setFocus();
    turnEventLoop();
    expect(isUp(), "the keypad is up one turn after the focus came");
    turnEventLoop();
    expect(field().hasFocus(), "the field keeps the focus while the keypad is up");
    expect(isUp(), "the keypad stays up");
}

/// A key of the keypad ends the edit.
void KeypadFieldMachine::end(const QString& key)
{
    turnEventLoop();
    if (!isUp())
        return;
    for (QAbstractButton* button : field().keypad()->findChildren<QAbstractButton*>()) {
        if (button->accessibleName() != key || !button->isEnabled())
            continue;
        const QString text = field().text();
        const bool acceptable =
            field().hasAcceptableInput(); // else Qt may let its validator mend it
        button->click();
        if (key == QLatin1String("OK") && acceptable)
            compare("committed text", field().text(), text);
        turnEventLoop();
        expect(!isUp(), "the keypad is down one turn after OK or Cancel");
        expect(!field().hasFocus(), "OK and Cancel give up the focus");
        return;
    }
}

void KeypadFieldMachine::tapOutside()
{
    turnEventLoop();
    QWindow* window = field().window()->windowHandle();
    const bool isEdited = field().isVisible() && field().isActiveWindow() && m_refocused;
    if (!isUp() || !isEdited || QApplication::activePopupWidget() != field().keypad() || !window)
        return;
    // Below the keypad too, which may be large.
    const int bottom =
        qMax(field().window()->geometry().bottom(), field().keypad()->geometry().bottom());
    const QPoint outside(field().window()->geometry().left(), bottom + 100);
    qt_handleMouseEvent(window, window->mapFromGlobal(outside), outside, Qt::LeftButton,
                        Qt::LeftButton, QEvent::MouseButtonPress, Qt::NoModifier, 0);
    turnEventLoop();
    turnEventLoop();
    expect(!isUp(), "a tap outside closes the keypad");
    expect(!field().hasFocus(), "a tap outside ends the edit");
}

void KeypadFieldMachine::checkState()
{
    m_model->check();
    KeypadPopup* popup = field().keypad();
    expect(!m_seen || m_seen->parent() != &field() || m_seen == popup,
           "one pop-up serves the field");
    expect(!popup || popup->parent() == &field(), "the pop-up belongs to the field");
    m_seen = popup;
}

} // namespace

std::unique_ptr<WidgetMachine> newKeypadFieldMachine(const std::shared_ptr<Stage>& stage)
{
    return std::make_unique<KeypadFieldMachine>(stage);
}

} // namespace soak
