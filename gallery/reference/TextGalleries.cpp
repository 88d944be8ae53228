#include "ClassPictures.h"

#include "Screenshots.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QApplication>
#include <QCoreApplication>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QString>

using ui::keyboard::KeyboardType;

namespace {

/// A window that the field fills, and in which it has the focus.
class FieldWindow : public QWidget
{
public:
    explicit FieldWindow(ui::LineEdit* field)
    {
        setAttribute(Qt::WA_DontShowOnScreen);
        field->setParent(this);
        field->adjustSize();
        resize(field->size());
        show();
        QApplication::setActiveWindow(this);
        field->setFocus();
    }
};

void type(const QString& text, QWidget* field)
{
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
        QCoreApplication::sendEvent(field, &press);
    }
}

QPixmap together(QWidget* window, QWidget* popup)
{
    const QPoint offset = popup->pos() - window->geometry().topLeft();
    const QRect whole = window->rect().united(popup->rect().translated(offset));
    QPixmap picture(whole.size());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawPixmap(-whole.topLeft(), window->grab());
    painter.drawPixmap(offset - whole.topLeft(), popup->grab());
    return picture;
}

/// \a field, which is deleted, with the focus and after the user has typed \a text.
QPixmap edited(ui::LineEdit* field, const QString& text)
{
    FieldWindow window(field);
    QCoreApplication::processEvents();
    type(text, field);
    return window.grab();
}

/// The same with the keypad of \a field in its place.
QPixmap edited(ui::KeypadLineEdit* field, const QString& text)
{
    FieldWindow window(field);
    field->keypad()->setAttribute(Qt::WA_DontShowOnScreen); // before the event loop shows it
    rendering::waitUntil([field] { return field->keypad()->isVisible(); });
    type(text, field);
    return together(&window, field->keypad());
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TextGalleries)
};

constexpr QSize fieldSize(200, 40);
constexpr int highestPort = 65535;

// Sections of the number keypads and of the text keypad.
constexpr int numbers = 0;
constexpr int letters = 0;
constexpr int digits = 1;
constexpr int symbols = 2;

template <typename Field>
Field* prepare(Field* field)
{
    field->setMinimumSize(fieldSize);
    field->setText(QStringLiteral("8080"));
    field->setValidator(new QIntValidator(1, highestPort, field));
    return field;
}

/// So that text that is not acceptable can be told.
template <typename Field>
Field* dress(Field* field)
{
    field->setStyleSheet(QStringLiteral("ui--LineEdit[inputValid=\"false\"] { color: #b00020; }"));
    return field;
}

ui::LineEdit* makeField()
{
    return prepare(new ui::LineEdit);
}

ui::KeypadLineEdit* makeKeypadField()
{
    auto* field = prepare(new ui::KeypadLineEdit(nullptr, KeyboardType::Integer));
    QObject::connect(field, &ui::KeypadLineEdit::startKeypad, field, [field] {
        field->keypad()->setSubtitleLabel(Texts::tr("Port, 1 to %1").arg(highestPort));
    });
    return field;
}

template <typename Field>
QWidget* makeDisabled(Field* field)
{
    field->setEnabled(false);
    return field;
}

QWidget* makeLabel(const QPixmap& picture)
{
    auto* label = new QLabel;
    label->setPixmap(picture);
    return label;
}

auto edited(const QString& text)
{
    return [text] { return makeLabel(edited(dress(makeField()), text)); };
}

auto editedByKeypad(const QString& text)
{
    return [text] { return makeLabel(edited(dress(makeKeypadField()), text)); };
}

/// The pop-up by itself, once \a prepare has been called for it and its field.
auto popup(KeyboardType type,
           const std::function<void(ui::KeypadPopup*, ui::LineEdit*)>& prepare = nullptr)
{
    return [type, prepare] {
        ui::LineEdit field;
        ui::KeypadPopup popup(&field, Texts::tr("Subtitle"), type, -1);
        if (prepare)
            prepare(&popup, &field);
        popup.resize(popup.sizeHint());
        return makeLabel(popup.grab());
    };
}

void showDigits(ui::KeypadPopup* popup, ui::LineEdit*)
{
    popup->setKeypadSectionVisible(letters, false);
    popup->setKeypadSectionVisible(digits, true);
    popup->setKeypadSectionVisible(symbols, true);
}

void hideNumbers(ui::KeypadPopup* popup, ui::LineEdit*)
{
    popup->setKeypadSectionVisible(numbers, false);
}

void refuseEntry(ui::KeypadPopup*, ui::LineEdit* field)
{
    Q_EMIT field->resultValidated(false);
}

} // namespace

StateGallery stategalleries::lineEdit()
{
    return {
        QStringLiteral("LineEdit"),
        3,
        {
            {Texts::tr("At rest"), makeField},
            {Texts::tr("With the focus: all is selected"), edited(QString())},
            {Texts::tr("Acceptable text is typed"), edited(QStringLiteral("443"))},
            {Texts::tr("Not acceptable, coloured by a style sheet"), edited(QStringLiteral("0"))},
            {Texts::tr("Disabled"), [] { return makeDisabled(makeField()); }},
            {Texts::tr("Dark palette"), makeField, ClassState::Dark},
        }};
}

StateGallery stategalleries::keypadLineEdit()
{
    return {QStringLiteral("KeypadLineEdit"),
            3,
            {
                {Texts::tr("At rest"), makeKeypadField},
                {Texts::tr("Disabled"), [] { return makeDisabled(makeKeypadField()); }},
                {Texts::tr("Dark palette"), makeKeypadField, ClassState::Dark},
                {Texts::tr("With the focus: the keypad is open"), editedByKeypad(QString())},
                {Texts::tr("Acceptable text is typed"), editedByKeypad(QStringLiteral("443"))},
                {Texts::tr("Not acceptable: OK is refused"), editedByKeypad(QStringLiteral("0"))},
            }};
}

StateGallery stategalleries::keypadPopup()
{
    return {
        QStringLiteral("KeypadPopup"),
        2,
        {
            {Texts::tr("Integer"), popup(KeyboardType::Integer)},
            {Texts::tr("While the text is not acceptable"),
             popup(KeyboardType::Integer, refuseEntry)},
            {Texts::tr("Decimal"), popup(KeyboardType::Decimal)},
            {Texts::tr("Decimal, without its only section"),
             popup(KeyboardType::Decimal, hideNumbers)},
            {Texts::tr("Text"), popup(KeyboardType::Text)},
            {Texts::tr("Text, with other sections visible"), popup(KeyboardType::Text, showDigits)},
        }};
}
