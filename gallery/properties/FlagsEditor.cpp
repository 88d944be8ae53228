#include "FoldoutEditors.h"

#include "Touch.h"

#include <Switch.h>

#include <QBoxLayout>
#include <QtAlgorithms>

#include <algorithm>

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
