#pragma once

#include "FoldoutEditor.h"

class BoolEditor;
class IntEditor;
class PartsForm;
QT_BEGIN_NAMESPACE
class QFont;
class QFontComboBox;
QT_END_NAMESPACE

/// Edits a font's family, size (in the unit that the font was given in), weight and slope.
class FontEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit FontEditor(QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    QFont shownFont() const;
    BoolEditor* addSwitch(PartsForm* form, const QString& label, void (QFont::*set)(bool));

    QFontComboBox* m_family;
    IntEditor* m_size;
    BoolEditor* m_bold;
    BoolEditor* m_italic;
    BoolEditor* m_underline;
};
