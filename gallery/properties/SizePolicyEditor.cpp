#include "FoldoutEditors.h"
#include "SimpleEditors.h"

#include <QSizePolicy>

#include <array>

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
