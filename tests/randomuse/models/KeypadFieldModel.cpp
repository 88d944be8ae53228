#include "KeypadKeys.h"
#include "LineEditModel.h"
#include "Models.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>
#include <QtTest/qtestmouse.h>
#include <QWindow>

#include <algorithm>

using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace test {

namespace {

/// When the keypad of a field is up: while it is edited, and not any longer.
class KeypadFieldModel : public WidgetModel
{
public:
    explicit KeypadFieldModel(const std::shared_ptr<TestWindows>& windows);

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
    void hideField(Values& values);

    QPointer<LineEditWatcher> m_watcher;
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

KeypadFieldModel::KeypadFieldModel(const std::shared_ptr<TestWindows>& windows)
    : WidgetModel(windows)
{
    add("showKeypad", 3, [this](Values&) { field().showKeypad(); });
    add("hideKeypad", 3, [this](Values&) { field().hideKeypad(); });
    add("usePopup", 2, [this](Values& v) { usePopup(v); });
    add("tapKeypad", 6, [this](Values& v) { tapKeypad(v); });
    add("edit", 4, [this](Values&) { edit(); });
    add("ok", 2, [this](Values&) { end(QStringLiteral("OK")); });
    add("cancelByKeypad", 2, [this](Values&) { end(QStringLiteral("Cancel")); });
    add("tapOutside", 2, [this](Values&) { tapOutside(); });
    add("hideField", 2, [this](Values& v) { hideField(v); });
    addLineEditCommands(*this);
    addAllCommands(*this);
}

QWidget* KeypadFieldModel::create()
{
    m_type = (m_type + 1) % 3;
    auto* created = new KeypadLineEdit(nullptr, KeyboardType(m_type));
    m_watcher = new LineEditWatcher(created, this);
    m_watcher->setHasKeypad();
    QObject::connect(created, &KeypadLineEdit::startKeypad, created, [this, created] {
        expect(created->keypad() && created->keypad()->isVisible(),
               "startKeypad() follows the show");
        m_refocused = created->hasFocus() && isOnlyPopup(created->keypad());
    });
    return created;
}

bool KeypadFieldModel::isUp()
{
    return field().keypad() && field().keypad()->isVisible();
}

void KeypadFieldModel::usePopup(Values& values)
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

void KeypadFieldModel::tapKeypad(Values& values)
{
    if (!isUp())
        return;
    const auto keys = field().keypad()->findChildren<QAbstractButton*>();
    if (!keys.isEmpty())
        keys.at(values.below(keys.size()))->click();
}

/// The field gets the focus, and once events are processed, the keypad is up.
void KeypadFieldModel::edit()
{
    processEvents();
    field().activateWindow();
    processEvents();
    if (!field().isVisible() || !field().isEnabled() || field().hasFocus()
        || !field().isActiveWindow() || QApplication::activePopupWidget())
        return;
    field().setFocus();
    processEvents();
    expect(isUp(), "the keypad is up once the events after the focus are processed");
    processEvents();
    expect(field().hasFocus(), "the field keeps the focus while the keypad is up");
    expect(isUp(), "the keypad stays up");
}

/// A key of the keypad ends the edit.
void KeypadFieldModel::end(const QString& key)
{
    processEvents();
    if (!isUp())
        return;
    QPushButton* button = findKeypadKey(*field().keypad(), key);
    if (!button || !button->isEnabled())
        return;
    const QString text = field().text();
    const bool acceptable = field().hasAcceptableInput(); // else Qt may let its validator fix it
    button->click();
    if (key == QLatin1String("OK") && acceptable)
        compare("committed text", field().text(), text);
    processEvents();
    expect(!isUp(), "the keypad is down once the events after OK or Cancel are processed");
    expect(!field().hasFocus(), "OK and Cancel give up the focus");
}

void KeypadFieldModel::tapOutside()
{
    processEvents();
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
    processEvents();
    processEvents();
    expect(!isUp(), "a tap outside closes the keypad");
    expect(!field().hasFocus(), "a tap outside ends the edit");
}

/// The keypad goes with its field, alone or with the window.
void KeypadFieldModel::hideField(Values& values)
{
    processEvents();
    if (!isUp() || !field().isVisible())
        return;
    const QPointer<QWidget> hidden = values.boolean() ? &field() : field().window();
    hidden->hide();
    processEvents();
    expect(!isUp(), "the keypad is down once the field is hidden and the events are processed");
    expect(!field().hasFocus(), "a hidden field ends the edit");
    if (hidden)
        hidden->show();
}

void KeypadFieldModel::checkState()
{
    m_watcher->check();
    KeypadPopup* popup = field().keypad();
    expect(!m_seen || m_seen->parent() != &field() || m_seen == popup,
           "one pop-up serves the field");
    expect(!popup || popup->parent() == &field(), "the pop-up belongs to the field");
    m_seen = popup;
}

} // namespace

std::unique_ptr<WidgetModel> newKeypadFieldModel(const std::shared_ptr<TestWindows>& windows)
{
    return std::make_unique<KeypadFieldModel>(windows);
}

} // namespace test
