#pragma once

#include "FoldoutEditor.h"

class IntEditor;
QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

/// Edits the easing curve and the duration of a Style::Animation.
class AnimationEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit AnimationEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    void enterEasing(int index);
    void enterDuration(const QVariant& duration);

    QComboBox* m_easing;
    IntEditor* m_duration;
};
