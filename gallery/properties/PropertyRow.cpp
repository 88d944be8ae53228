#include "PropertyRow.h"

#include "Touch.h"
#include "ValueEditor.h"

#include <QBoxLayout>
#include <QLabel>
#include <QStyle>

namespace {

/// A style sheet that selects on a dynamic property looks at it only when it polishes the widget.
void polishAnew(QWidget& widget)
{
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

} // namespace

PropertyRow::PropertyRow(QObject* target, const QByteArray& name, QWidget* parent)
    : QWidget(parent)
    , m_target(target)
    , m_name(name)
    , m_editor(makeValueEditor(*target, name))
    , m_shown(target->property(name.constData()))
{
    layOut();
    m_editor->setValue(m_shown);
    connect(m_editor, &ValueEditor::edited, this, &PropertyRow::write);
}

const QByteArray& PropertyRow::name() const
{
    return m_name;
}

ValueEditor* PropertyRow::editor() const
{
    return m_editor;
}

void PropertyRow::refresh()
{
    if (!m_target)
        return;
    const QVariant value = m_target->property(m_name.constData());
    if (value == m_shown)
        return;
    m_shown = value;
    m_editor->setValue(value);
}

void PropertyRow::layOut()
{
    auto* label = new QLabel(QString::fromLatin1(m_name));
    auto* box = new QBoxLayout(
        m_editor->isNarrow() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    box->setContentsMargins(0, 4, 0, 4);
    box->setSpacing(2);
    box->addWidget(label, m_editor->isNarrow() ? 1 : 0);
    box->addWidget(m_editor);
}

void PropertyRow::write(const QVariant& value)
{
    if (!m_target)
        return;
    const bool isStatic = m_target->setProperty(m_name.constData(), value);
    auto* widget = qobject_cast<QWidget*>(m_target);
    if (!isStatic && widget)
        polishAnew(*widget);

    // Also where the property has kept its value: the editor still shows what was entered.
    if (m_target)
        m_shown = m_target->property(m_name.constData());
    m_editor->setValue(m_shown);
    Q_EMIT edited();
}
