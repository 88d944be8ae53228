#include "FoldoutEditors.h"

#include "SimpleEditors.h"
#include "Touch.h"

#include <Switch.h>

#include <QBoxLayout>
#include <QFormLayout>
#include <QLabel>
#include <QRect>
#include <QSizePolicy>
#include <QtAlgorithms>
#include <QToolButton>

#include <algorithm>
#include <array>

FoldoutEditor::FoldoutEditor(QWidget* parent)
    : ValueEditor(parent)
    , m_header(new QHBoxLayout)
    , m_button(touch::makeFoldButton())
    , m_body(nullptr)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(m_header);
    m_button->setAutoRaise(false);
    m_header->addWidget(m_button, 1);
    connect(m_button, &QToolButton::toggled, this, &FoldoutEditor::unfold);
}

void FoldoutEditor::setValue(const QVariant& value)
{
    m_value = value;
    m_button->setText(summary(value));
    if (m_body)
        fillBody(value);
}

const QVariant& FoldoutEditor::value() const
{
    return m_value;
}

QBoxLayout* FoldoutEditor::header() const
{
    return m_header;
}

void FoldoutEditor::unfold(bool open)
{
    if (!m_body) {
        m_body = makeBody();
        layout()->addWidget(m_body);
        fillBody(m_value);
    }
    m_body->setVisible(open);
}

PartsForm::PartsForm(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QFormLayout(this))
{
    m_layout->setContentsMargins(0, 2, 0, 0);
    m_layout->setSpacing(2);
    m_layout->setHorizontalSpacing(8);
}

void PartsForm::addHeading(const QString& text)
{
    m_layout->addRow(touch::makeLabel(text));
}

void PartsForm::addPart(QWidget* editor)
{
    m_layout->addRow(editor);
}

void PartsForm::addPart(const QString& name, QWidget* editor)
{
    QLabel* label = touch::makeLabel(name);
    label->setMinimumHeight(touch::targetSize); // centred beside an editor of that height
    m_layout->addRow(label, editor);
}

FlagsEditor::FlagsEditor(const QMetaEnum& metaEnum, QWidget* parent)
    : FoldoutEditor(parent)
{
    for (int i = 0; i < metaEnum.keyCount(); ++i) {
        const uint bit = uint(metaEnum.value(i));
        const bool known = std::any_of(m_flags.cbegin(), m_flags.cend(),
                                       [bit](const Flag& flag) { return flag.bit == bit; });
        if (qPopulationCount(bit) == 1 && !known) // a second key of a bit is an alias
            m_flags.append({QString::fromLatin1(metaEnum.key(i)), bit, nullptr});
    }
}

QString FlagsEditor::summary(const QVariant& value) const
{
    QStringList keys;
    for (const Flag& flag : m_flags) {
        if (value.toUInt() & flag.bit)
            keys.append(flag.key);
    }
    return keys.isEmpty() ? tr("none") : keys.join(QStringLiteral(" | "));
}

QWidget* FlagsEditor::makeBody()
{
    auto* body = new QWidget;
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (Flag& flag : m_flags) {
        const uint bit = flag.bit;
        flag.control = touch::makeSwitch(flag.key);
        column->addWidget(flag.control, 0, Qt::AlignLeft);
        connect(flag.control, &QAbstractButton::clicked, this, [this, bit](bool on) {
            const uint flags = value().toUInt();
            Q_EMIT edited(int(on ? flags | bit : flags & ~bit));
        });
    }
    return body;
}

void FlagsEditor::fillBody(const QVariant& value)
{
    for (const Flag& flag : qAsConst(m_flags))
        flag.control->setChecked(value.toUInt() & flag.bit);
}

namespace {

/// What a size policy is made of, in the order of their editors.
std::array<int, 4> partsOf(const QVariant& value)
{
    const auto policy = value.value<QSizePolicy>();
    return {policy.horizontalPolicy(), policy.verticalPolicy(), policy.horizontalStretch(),
            policy.verticalStretch()};
}

constexpr int largestStretch = 255; // that Qt keeps

QVariant changed(const QVariant& value, int part, int number)
{
    auto policy = value.value<QSizePolicy>();
    const int stretch = qBound(0, number, largestStretch);
    switch (part) {
    case 0:
        policy.setHorizontalPolicy(QSizePolicy::Policy(number));
        break;
    case 1:
        policy.setVerticalPolicy(QSizePolicy::Policy(number));
        break;
    case 2:
        policy.setHorizontalStretch(stretch);
        break;
    default:
        policy.setVerticalStretch(stretch);
        break;
    }
    return QVariant::fromValue(policy);
}

QString policyName(int policy)
{
    return QString::fromLatin1(QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(policy));
}

} // namespace

SizePolicyEditor::SizePolicyEditor(QWidget* parent)
    : FoldoutEditor(parent)
{
}

QString SizePolicyEditor::summary(const QVariant& value) const
{
    const auto parts = partsOf(value);
    return QStringLiteral("%1, %2").arg(policyName(parts[0]), policyName(parts[1]));
}

QWidget* SizePolicyEditor::makeBody()
{
    const QMetaEnum policies = QMetaEnum::fromType<QSizePolicy::Policy>();
    m_editors = {new EnumEditor(policies), new EnumEditor(policies), new IntEditor, new IntEditor};
    const QStringList names = {tr("Horizontal"), tr("Vertical"), tr("Horizontal stretch"),
                               tr("Vertical stretch")};
    auto* form = new PartsForm;
    for (int part = 0; part < m_editors.size(); ++part) {
        connect(m_editors.at(part), &ValueEditor::edited, this,
                [this, part](const QVariant& number) {
                    Q_EMIT edited(changed(value(), part, number.toInt()));
                });
        form->addHeading(names.at(part));
        form->addPart(m_editors.at(part));
    }
    return form;
}

void SizePolicyEditor::fillBody(const QVariant& value)
{
    const auto parts = partsOf(value);
    for (int i = 0; i < m_editors.size(); ++i)
        m_editors.at(i)->setValue(parts.at(size_t(i)));
}

namespace {

struct Number
{
    QString name;
    int value;
};

QVector<Number> numbersOf(const QVariant& value)
{
    const QRect rect = value.toRect();
    const QPoint point = value.userType() == QMetaType::QRect ? rect.topLeft() : value.toPoint();
    const QSize size = value.userType() == QMetaType::QRect ? rect.size() : value.toSize();
    QVector<Number> numbers;
    if (value.userType() != QMetaType::QSize)
        numbers << Number{QStringLiteral("x"), point.x()} << Number{QStringLiteral("y"), point.y()};
    if (value.userType() != QMetaType::QPoint) {
        numbers << Number{TupleEditor::tr("width"), size.width()}
                << Number{TupleEditor::tr("height"), size.height()};
    }
    return numbers;
}

QVariant composed(int type, const QVector<Number>& numbers)
{
    const auto number = [&numbers](int index) { return numbers.at(index).value; };
    switch (type) {
    case QMetaType::QPoint:
        return QPoint(number(0), number(1));
    case QMetaType::QSize:
        return QSize(number(0), number(1));
    default:
        return QRect(number(0), number(1), number(2), number(3));
    }
}

} // namespace

TupleEditor::TupleEditor(QWidget* parent)
    : FoldoutEditor(parent)
{
}

QString TupleEditor::summary(const QVariant& value) const
{
    return valueText(value);
}

QWidget* TupleEditor::makeBody()
{
    auto* form = new PartsForm;
    const QVector<Number> numbers = numbersOf(value());
    for (int index = 0; index < numbers.size(); ++index) {
        auto* editor = new IntEditor;
        connect(editor, &IntEditor::edited, this,
                [this, index](const QVariant& number) { enterNumber(index, number.toInt()); });
        form->addPart(numbers.at(index).name, editor);
        m_editors.append(editor);
    }
    return form;
}

void TupleEditor::fillBody(const QVariant& value)
{
    const QVector<Number> numbers = numbersOf(value);
    for (int index = 0; index < m_editors.size(); ++index)
        m_editors.at(index)->setValue(numbers.at(index).value);
}

void TupleEditor::enterNumber(int index, int number)
{
    QVector<Number> numbers = numbersOf(value());
    numbers[index].value = number;
    Q_EMIT edited(composed(value().userType(), numbers));
}
