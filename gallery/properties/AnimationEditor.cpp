#include "FoldoutEditors.h"

#include "SimpleEditors.h"
#include "Switch.h"

#include <QComboBox>
#include <QMetaEnum>

AnimationEditor::AnimationEditor(QWidget* parent)
    : FoldoutEditor(parent)
    , m_easing(nullptr)
    , m_duration(nullptr)
{
}

QString AnimationEditor::summary(const QVariant& value) const
{
    const auto animation = value.value<Style::Animation>();
    const char* easing = QMetaEnum::fromType<QEasingCurve::Type>().valueToKey(animation.easing);
    return tr("%1, %2 ms").arg(QString::fromLatin1(easing)).arg(animation.duration);
}

QWidget* AnimationEditor::makeBody()
{
    m_easing = EasingCurveEditor::makeTypeBox();
    connect(m_easing, QOverload<int>::of(&QComboBox::activated), this,
            &AnimationEditor::enterEasing);
    m_duration = new IntEditor;
    connect(m_duration, &IntEditor::edited, this, &AnimationEditor::enterDuration);

    auto* form = new PartsForm;
    form->addPart(m_easing);
    form->addPart(m_duration);
    return form;
}

void AnimationEditor::fillBody(const QVariant& value)
{
    const auto animation = value.value<Style::Animation>();
    m_easing->setCurrentIndex(m_easing->findData(int(animation.easing)));
    m_duration->setValue(animation.duration);
}

void AnimationEditor::enterEasing(int index)
{
    auto animation = value().value<Style::Animation>();
    animation.easing = QEasingCurve::Type(m_easing->itemData(index).toInt());
    Q_EMIT edited(QVariant::fromValue(animation));
}

void AnimationEditor::enterDuration(const QVariant& duration)
{
    auto animation = value().value<Style::Animation>();
    animation.duration = duration.toInt();
    Q_EMIT edited(QVariant::fromValue(animation));
}
