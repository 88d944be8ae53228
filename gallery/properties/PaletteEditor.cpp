#include "FoldoutEditors.h"

#include <QPalette>

#include <array>

namespace {

constexpr std::array<QPalette::ColorRole, 8> roles = {
    QPalette::Window, QPalette::WindowText, QPalette::Base,      QPalette::Text,
    QPalette::Button, QPalette::ButtonText, QPalette::Highlight, QPalette::HighlightedText};

QString nameOf(QPalette::ColorRole role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role));
}

} // namespace

PaletteEditor::PaletteEditor(QWidget* parent)
    : FoldoutEditor(parent)
{
}

QString PaletteEditor::summary(const QVariant& value) const
{
    const auto palette = value.value<QPalette>();
    return tr("%1 on %2")
        .arg(palette.color(QPalette::WindowText).name(), palette.color(QPalette::Window).name());
}

QWidget* PaletteEditor::makeBody()
{
    auto* form = new PartsForm;
    for (const QPalette::ColorRole role : roles) {
        auto* editor = new ColorEditor;
        connect(editor, &ColorEditor::edited, this, [this, role](const QVariant& color) {
            auto palette = value().value<QPalette>();
            palette.setColor(role, color.value<QColor>());
            Q_EMIT edited(palette);
        });
        form->addHeading(nameOf(role));
        form->addPart(editor);
        m_editors.append(editor);
    }
    return form;
}

void PaletteEditor::fillBody(const QVariant& value)
{
    const auto palette = value.value<QPalette>();
    for (int i = 0; i < m_editors.size(); ++i)
        m_editors.at(i)->setValue(palette.color(roles.at(size_t(i))));
}
