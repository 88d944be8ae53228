#include "SimpleEditors.h"

#include "Touch.h"
#include "ValueEditor.h"

#include <Switch.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QDoubleValidator>
#include <QEasingCurve>
#include <QIntValidator>
#include <QLabel>
#include <QLocale>
#include <QToolButton>

#include <limits>

using ui::keyboard::KeyboardType;

namespace {

// Most doubles of a widget are fractions from 0 to 1.
constexpr double doubleStep = 0.05;
constexpr int digits = 6;

/// In place of a character that nobody is to read.
constexpr QChar dot(0x2022);

const QString separator = QStringLiteral("; ");

QHBoxLayout* makeRow(QWidget* parent)
{
    auto* row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    return row;
}

EnumEditor::Choices choicesOf(const QMetaEnum& metaEnum)
{
    EnumEditor::Choices choices;
    for (int i = 0; i < metaEnum.keyCount(); ++i)
        choices.append({QString::fromLatin1(metaEnum.key(i)), metaEnum.value(i)});
    return choices;
}

} // namespace

BoolEditor::BoolEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_switch(touch::makeSwitch())
{
    makeRow(this)->addWidget(m_switch);
    connect(m_switch, &QAbstractButton::clicked, this, [this](bool on) { Q_EMIT edited(on); });
}

void BoolEditor::setValue(const QVariant& value)
{
    m_switch->setChecked(value.toBool());
}

bool BoolEditor::isNarrow() const
{
    return true;
}

FieldEditor::FieldEditor(KeyboardType type, const QString& title, QWidget* parent)
    : ValueEditor(parent)
    , m_field(touch::makeField(type, title))
{
    m_field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    makeRow(this)->addWidget(m_field, 1);
    connect(m_field, &QLineEdit::editingFinished, this, &FieldEditor::showValue);
}

void FieldEditor::setValue(const QVariant& value)
{
    const bool isNew = value != m_value || m_isEntering;
    m_value = value;
    if (isNew && !isTyping())
        showValue();
}

ui::KeypadLineEdit* FieldEditor::field() const
{
    return m_field;
}

const QVariant& FieldEditor::value() const
{
    return m_value;
}

void FieldEditor::enter(const QVariant& value)
{
    m_isEntering = true;
    Q_EMIT edited(value);
    m_isEntering = false;
}

/// The keypad takes the focus away from the field.
bool FieldEditor::isTyping() const
{
    return m_field->hasFocus() || (m_field->keypad() && m_field->keypad()->isVisible());
}

void FieldEditor::showValue()
{
    const QString text = textOf(m_value);
    if (m_field->text() != text) // keeps the cursor where it is
        m_field->setText(text);
}

NumberEditor::NumberEditor(KeyboardType type, const QString& title, QWidget* parent)
    : FieldEditor(type, title, parent)
{
    field()->setAlignment(Qt::AlignCenter);
    addStepButton(-1);
    addStepButton(1);
    connect(field(), &ui::LineEdit::valueChanged, this, [this] {
        if (field()->hasAcceptableInput())
            enter(valueOf(field()->text()));
    });
}

void NumberEditor::addStepButton(int steps)
{
    auto* button = new QToolButton;
    button->setText(steps < 0 ? QString(QChar(0x2212)) : QStringLiteral("+"));
    button->setObjectName(steps < 0 ? QStringLiteral("stepDown") : QStringLiteral("stepUp"));
    button->setAutoRepeat(true);
    button->setFixedSize(touch::targetSize, touch::targetSize);
    connect(button, &QToolButton::clicked, this, [this, steps] { enter(stepped(steps)); });
    auto* row = static_cast<QHBoxLayout*>(layout());
    row->insertWidget(steps < 0 ? 0 : -1, button);
}

IntEditor::IntEditor(QWidget* parent)
    : NumberEditor(KeyboardType::Integer, tr("Whole number"), parent)
{
    field()->setValidator(new QIntValidator(this));
}

QString IntEditor::textOf(const QVariant& value) const
{
    return QString::number(value.toInt());
}

QVariant IntEditor::valueOf(const QString& text) const
{
    return text.toInt();
}

QVariant IntEditor::stepped(int steps) const
{
    const qint64 wanted = qint64(value().toInt()) + steps;
    using Limits = std::numeric_limits<int>;
    return int(qBound(qint64(Limits::min()), wanted, qint64(Limits::max())));
}

DoubleEditor::DoubleEditor(QWidget* parent)
    : NumberEditor(KeyboardType::Decimal, tr("Number"), parent)
{
    field()->setValidator(new QDoubleValidator(this));
}

QString DoubleEditor::textOf(const QVariant& value) const
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value.toDouble(), 'g', digits);
}

QVariant DoubleEditor::valueOf(const QString& text) const
{
    return QLocale().toDouble(text);
}

QVariant DoubleEditor::stepped(int steps) const
{
    return value().toDouble() + steps * doubleStep;
}

TextEditor::TextEditor(QWidget* parent)
    : FieldEditor(KeyboardType::Text, tr("Text"), parent)
{
    // Cancel announces the text from before as an edit, too.
    connect(field(), &QLineEdit::textEdited, this, [this](const QString& text) { enter(text); });
}

void TextEditor::hideText()
{
    field()->setEchoMode(QLineEdit::Password);
}

QString TextEditor::textOf(const QVariant& value) const
{
    return value.toString();
}

TextListEditor::TextListEditor(QWidget* parent)
    : FieldEditor(KeyboardType::Text, tr("List, separated by semicolons"), parent)
{
    connect(field(), &ui::LineEdit::valueChanged, this, [this] {
        QStringList texts;
        const QStringList parts = field()->text().split(separator.at(0), Qt::SkipEmptyParts);
        for (const QString& part : parts)
            texts.append(part.trimmed());
        enter(texts);
    });
}

QString TextListEditor::textOf(const QVariant& value) const
{
    return value.toStringList().join(separator);
}

EnumEditor::EnumEditor(const QMetaEnum& metaEnum, QWidget* parent)
    : EnumEditor(choicesOf(metaEnum), parent)
{
}

EnumEditor::EnumEditor(const Choices& choices, QWidget* parent)
    : ValueEditor(parent)
    , m_box(touch::makeComboBox())
{
    for (const auto& choice : choices)
        m_box->addItem(choice.first, choice.second);
    makeRow(this)->addWidget(m_box);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT edited(m_box->itemData(index)); });
}

void EnumEditor::setValue(const QVariant& value)
{
    m_box->setCurrentIndex(m_box->findData(value.toInt()));
}

EasingCurveEditor::EasingCurveEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(makeTypeBox())
{
    makeRow(this)->addWidget(m_box);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        const auto type = QEasingCurve::Type(m_box->itemData(index).toInt());
        Q_EMIT edited(QVariant::fromValue(QEasingCurve(type)));
    });
}

void EasingCurveEditor::setValue(const QVariant& value)
{
    m_box->setCurrentIndex(m_box->findData(int(value.toEasingCurve().type())));
}

QComboBox* EasingCurveEditor::makeTypeBox()
{
    QComboBox* box = touch::makeComboBox();
    const QMetaEnum types = QMetaEnum::fromType<QEasingCurve::Type>();
    for (int i = 0; i < types.keyCount(); ++i) {
        if (types.value(i)
            < QEasingCurve::BezierSpline) // from here on a curve needs more than its type
            box->addItem(QString::fromLatin1(types.key(i)), types.value(i));
    }
    return box;
}

ReadOnlyValue::ReadOnlyValue(QWidget* parent)
    : ValueEditor(parent)
    , m_label(touch::makeLabel())
{
    // A word that is too long, as some debug output is, does not make the whole list too wide.
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_label->setEnabled(false); // the look of what cannot be changed
    makeRow(this)->addWidget(m_label);
}

void ReadOnlyValue::setValue(const QVariant& value)
{
    const QString text = valueText(value);
    m_label->setText(m_isHidden ? QString(text.size(), dot) : text);
}

void ReadOnlyValue::hideText()
{
    m_isHidden = true;
}
