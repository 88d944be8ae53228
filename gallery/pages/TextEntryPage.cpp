#include "GalleryPage.h"
#include "Pages.h"
#include "Touch.h"

#include <ui/keyboard/KeyboardType.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QLabel>
#include <QRegularExpressionValidator>

using ui::KeypadLineEdit;
using ui::keyboard::KeyboardType;

namespace {

constexpr int margin = 16;
constexpr int spacing = 12;
constexpr int numberWidth = 100;
constexpr int textMargin = 6;

constexpr double lowestTemperature = -20.0;
constexpr double highestTemperature = 60.0;
constexpr int highestChannel = 99;
constexpr int highestPort = 65535;

// Sections of the text keypad.
constexpr int letters = 0;
constexpr int digits = 1;
constexpr int symbols = 2;

QRegularExpressionValidator* patternValidator(const QString& pattern)
{
    return new QRegularExpressionValidator(QRegularExpression(pattern));
}

QLabel* makeLabel(ui::LineEdit* field)
{
    QLabel* label = touch::makeLabel(field->accessibleName());
    label->setBuddy(field);
    return label;
}

/// A settings form of keypad line edits; those at the bottom show where a keypad goes for want of
/// room.
class TextEntryPage : public GalleryPage
{
    Q_DECLARE_TR_FUNCTIONS(TextEntryPage)

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
    static void addRow(QGridLayout* form, ui::LineEdit* field);
    ui::LineEdit* makePlain();
    void present(ui::LineEdit* field, const QString& title);
    static void addPair(QBoxLayout* row, ui::KeypadLineEdit* field);

    QLabel* m_report;
};

TextEntryPage::TextEntryPage(QWidget* parent)
    : GalleryPage(parent)
    , m_report(touch::makeLabel(
          tr("Tap a field. OK takes the value, Cancel and a tap elsewhere do not.")))
{
    auto* form = new QGridLayout;
    form->setSpacing(spacing);
    addRow(form, makeAddress());
    addRow(form, makeTemperature());
    addRow(form, makeName());
    addRow(form, makePin());
    addRow(form, makePlain());

    // In the lower corners of the screen, so that the keypads go above and to the left.
    auto* corners = new QHBoxLayout;
    corners->setSpacing(spacing);
    addPair(corners, makeNumber(tr("Channel"), 11, highestChannel));
    corners->addStretch();
    addPair(corners, makeNumber(tr("Port"), 8080, highestPort));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->addLayout(form);
    column->addWidget(m_report, 1);
    column->addLayout(corners);
}

KeypadLineEdit* TextEntryPage::makeAddress()
{
    const QString number = QStringLiteral("(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])");
    KeypadLineEdit* field =
        makeField(tr("IP address"), KeyboardType::Text,
                  patternValidator(number + QStringLiteral("(\\.%1){3}").arg(number)));
    field->setText(QStringLiteral("192.168.0.10"));
    connect(field, &KeypadLineEdit::startKeypad, this, [field] {
        field->keypad()->setKeypadSectionVisible(letters, false);
        field->keypad()->setKeypadSectionVisible(digits, true);
        field->keypad()->setKeypadSectionVisible(symbols, true);
    });
    return field;
}

KeypadLineEdit* TextEntryPage::makeTemperature()
{
    auto* validator = new QDoubleValidator(lowestTemperature, highestTemperature, 1, nullptr);
    validator->setNotation(QDoubleValidator::StandardNotation);
    const QString title =
        tr("Temperature, %1 to %2 °C").arg(lowestTemperature).arg(highestTemperature);
    KeypadLineEdit* field = makeField(title, KeyboardType::Decimal, validator);
    field->setText(QLocale().toString(21.5, 'f', 1));
    return field;
}

KeypadLineEdit* TextEntryPage::makeName()
{
    KeypadLineEdit* field = makeField(tr("Name, 2 to 20 characters"), KeyboardType::Text,
                                      patternValidator(QStringLiteral("\\S.{1,19}")));
    field->setText(tr("Kitchen"));
    return field;
}

KeypadLineEdit* TextEntryPage::makePin()
{
    KeypadLineEdit* field = makeField(tr("PIN, 4 to 6 digits"), KeyboardType::Integer,
                                      patternValidator(QStringLiteral("[0-9]{4,6}")));
    field->setEchoMode(QLineEdit::Password);
    field->setText(QStringLiteral("1234"));
    return field;
}

KeypadLineEdit* TextEntryPage::makeNumber(const QString& title, int number, int highest)
{
    KeypadLineEdit* field =
        makeField(title, KeyboardType::Integer, new QIntValidator(1, highest, nullptr));
    field->setFixedWidth(numberWidth);
    field->setText(QString::number(number));
    return field;
}

KeypadLineEdit* TextEntryPage::makeField(const QString& title, KeyboardType type,
                                         QValidator* validator)
{
    KeypadLineEdit* field = touch::makeField(type, title);
    validator->setParent(field);
    field->setValidator(validator);
    present(field, title);
    return field;
}

/// Without a keypad: for a device that has a keyboard.
ui::LineEdit* TextEntryPage::makePlain()
{
    const QString title = tr("Plain field, 3 to 8 small letters");
    auto* field = new ui::LineEdit;
    field->setAccessibleName(title);
    field->setMinimumHeight(touch::targetSize);
    field->setTextMargins(textMargin, 0, textMargin, 0);
    QValidator* validator = patternValidator(QStringLiteral("[a-z]{3,8}"));
    validator->setParent(field);
    field->setValidator(validator);
    field->setText(QStringLiteral("kitchen"));
    present(field, title);
    return field;
}

void TextEntryPage::present(ui::LineEdit* field, const QString& title)
{
    connect(field, &ui::LineEdit::valueChanged, this, [this, field, title] {
        m_report->setText(tr("%1: %2").arg(title, field->displayText()));
    });
    addDemoWidget(field, title);
}

void TextEntryPage::addRow(QGridLayout* form, ui::LineEdit* field)
{
    const int row = form->rowCount();
    form->addWidget(makeLabel(field), row, 0);
    form->addWidget(field, row, 1);
    form->setColumnStretch(1, 1);
}

void TextEntryPage::addPair(QBoxLayout* row, KeypadLineEdit* field)
{
    row->addWidget(makeLabel(field));
    row->addWidget(field);
}

} // namespace

GalleryPage* makeTextEntryPage(QWidget* parent)
{
    return new TextEntryPage(parent);
}
