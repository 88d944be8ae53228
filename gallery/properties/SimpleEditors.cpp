#include "SimpleEditors.h"

#include "Touch.h"
#include "ValueText.h"

#include <QAbstractSpinBox>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEasingCurve>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

#include <limits>

namespace {

QToolButton* makeStepButton(const QString& text, const QString& name)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setObjectName(name);
    button->setAutoRepeat(true);
    button->setFixedSize(touch::touchSize, touch::touchSize);
    return button;
}

/// Fills \a parent with \a box between a "-" and a "+" button, in place of the box's own.
/// Typed digits count once the editing is finished.
void layOutWithStepButtons(QAbstractSpinBox* box, QWidget* parent)
{
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setKeyboardTracking(false);
    box->setAlignment(Qt::AlignCenter);
    box->setMinimumHeight(touch::touchSize);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    touch::leaveWheelToScrollArea(box);

    QToolButton* down = makeStepButton(QString(QChar(0x2212)), QStringLiteral("stepDown"));
    QToolButton* up = makeStepButton(QStringLiteral("+"), QStringLiteral("stepUp"));
    QObject::connect(down, &QToolButton::clicked, box, &QAbstractSpinBox::stepDown);
    QObject::connect(up, &QToolButton::clicked, box, &QAbstractSpinBox::stepUp);

    auto* row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(down);
    row->addWidget(box, 1);
    row->addWidget(up);
}

// Most doubles of a widget are fractions from 0 to 1.
constexpr double step = 0.05;
constexpr int decimals = 3;

/// The largest magnitude of which the spin box can show every digit.
constexpr double limit = 1e12;

} // namespace

BoolEditor::BoolEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(touch::makeCheckBox())
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box);
    connect(m_box, &QCheckBox::clicked, this, [this](bool on) { Q_EMIT edited(on); });
}

void BoolEditor::setValue(const QVariant& value)
{
    m_box->setChecked(value.toBool());
}

bool BoolEditor::isNarrow() const
{
    return true;
}

IntEditor::IntEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(new QSpinBox)
{
    m_box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    layOutWithStepButtons(m_box, this);
    connect(m_box, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { Q_EMIT edited(value); });
}

void IntEditor::setValue(const QVariant& value)
{
    if (m_box->value() == value.toInt())
        return; // keeps digits that are being typed
    const QSignalBlocker blocker(m_box);
    m_box->setValue(value.toInt());
}

DoubleEditor::DoubleEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_box(new QDoubleSpinBox)
{
    m_box->setRange(-limit, limit);
    m_box->setDecimals(decimals);
    m_box->setSingleStep(step);
    layOutWithStepButtons(m_box, this);
    connect(m_box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double value) { Q_EMIT edited(value); });
}

void DoubleEditor::setValue(const QVariant& value)
{
    if (m_box->textFromValue(m_box->value()) == m_box->textFromValue(value.toDouble()))
        return; // keeps digits that are being typed
    const QSignalBlocker blocker(m_box);
    m_box->setValue(value.toDouble());
}

TextEditor::TextEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_edit(new QLineEdit)
{
    m_edit->setMinimumHeight(touch::touchSize);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_edit);
    connect(m_edit, &QLineEdit::textEdited, this,
            [this](const QString& text) { Q_EMIT edited(text); });
}

void TextEditor::setValue(const QVariant& value)
{
    if (m_edit->text() != value.toString()) // keeps the cursor where it is
        m_edit->setText(value.toString());
}

EnumEditor::EnumEditor(const QMetaEnum& metaEnum, QWidget* parent)
    : ValueEditor(parent)
    , m_box(touch::makeComboBox())
{
    for (int i = 0; i < metaEnum.keyCount(); ++i)
        m_box->addItem(QString::fromLatin1(metaEnum.key(i)), metaEnum.value(i));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box);
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
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box);
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
    , m_label(new QLabel)
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    // A word that is too long, as some debug output is, does not make the whole list too wide.
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_label->setEnabled(false); // the look of what cannot be changed
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_label);
}

void ReadOnlyValue::setValue(const QVariant& value)
{
    m_label->setText(valueText(value));
}
