#pragma once

#include "FoldoutEditor.h"

#include <array>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QSlider;
QT_END_NAMESPACE

/// Edits a colour by name and by its red, green, blue and alpha.
class ColorEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit ColorEditor(QWidget* parent = nullptr);

    void setValue(const QVariant& value) override;

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    void enterName(const QString& name);
    void enterChannels();

    QLabel* m_swatch;
    QLineEdit* m_name;
    std::array<QSlider*, 4> m_channels;
};
