#include "FoldoutEditors.h"

#include "SimpleEditors.h"
#include "Touch.h"

#include <QFont>
#include <QFontComboBox>

namespace {

bool isInPixels(const QFont& font)
{
    return font.pixelSize() > 0;
}

void setSize(QFont& font, int size)
{
    const int valid = qMax(1, size); // what Qt accepts
    if (isInPixels(font))
        font.setPixelSize(valid);
    else
        font.setPointSize(valid);
}

} // namespace

FontEditor::FontEditor(QWidget* parent)
    : FoldoutEditor(parent)
    , m_family(nullptr)
    , m_size(nullptr)
    , m_bold(nullptr)
    , m_italic(nullptr)
    , m_underline(nullptr)
{
}

QString FontEditor::summary(const QVariant& value) const
{
    const QFont font = value.value<QFont>();
    return isInPixels(font) ? tr("%1, %2 px").arg(font.family()).arg(font.pixelSize())
                            : tr("%1, %2 pt").arg(font.family()).arg(font.pointSizeF());
}

QWidget* FontEditor::makeBody()
{
    auto* form = new PartsForm;

    m_family = new QFontComboBox;
    m_family->setEditable(false);
    touch::adapt(m_family);
    connect(m_family, &QFontComboBox::currentFontChanged, this, [this](const QFont& chosen) {
        QFont changed = shownFont();
        changed.setFamily(chosen.family());
        Q_EMIT edited(changed);
    });
    form->addPart(m_family);

    m_size = new IntEditor;
    connect(m_size, &IntEditor::edited, this, [this](const QVariant& size) {
        QFont changed = shownFont();
        setSize(changed, size.toInt());
        Q_EMIT edited(changed);
    });
    form->addPart(m_size);

    m_bold = addSwitch(form, tr("Bold"), &QFont::setBold);
    m_italic = addSwitch(form, tr("Italic"), &QFont::setItalic);
    m_underline = addSwitch(form, tr("Underline"), &QFont::setUnderline);
    return form;
}

void FontEditor::fillBody(const QVariant& value)
{
    const QFont font = value.value<QFont>();
    const QSignalBlocker blocker(m_family);
    m_family->setCurrentFont(font);
    m_size->setValue(isInPixels(font) ? font.pixelSize() : font.pointSize());
    m_bold->setValue(font.bold());
    m_italic->setValue(font.italic());
    m_underline->setValue(font.underline());
}

QFont FontEditor::shownFont() const
{
    return value().value<QFont>();
}

BoolEditor* FontEditor::addSwitch(PartsForm* form, const QString& label, void (QFont::*set)(bool))
{
    auto* editor = new BoolEditor;
    connect(editor, &BoolEditor::edited, this, [this, set](const QVariant& on) {
        QFont changed = shownFont();
        (changed.*set)(on.toBool());
        Q_EMIT edited(changed);
    });
    form->addPart(label, editor);
    return editor;
}
