#include "PropertyGroup.h"

#include "PropertyList.h"
#include "Touch.h"
#include "ValueEditor.h"

#include <QBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

namespace {

/// Of the dynamic property that remembers a value from before the first edit.
QByteArray memory(const QByteArray& name)
{
    return "_q_before_" + name;
}

QVariant valueBeforeEdits(const QObject& object, const QByteArray& name)
{
    return object.property(memory(name).constData());
}

void rememberBeforeEdits(QObject* object, const QByteArray& name)
{
    if (!valueBeforeEdits(*object, name).isValid())
        object->setProperty(memory(name).constData(), propertyValue(*object, name));
}

QToolButton* makeResetButton()
{
    auto* button = new QToolButton;
    button->setObjectName(QStringLiteral("resetButton"));
    button->setText(QChar(0x21ba));
    button->setAccessibleName(PropertyRow::tr("Reset"));
    button->setAutoRaise(true);
    button->setFixedSize(touch::targetSize, touch::targetSize);
    // Appearing after the first tap on an editor, it must not move that away from the second one.
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    return button;
}

} // namespace

PropertyRow::PropertyRow(QObject* target, const QByteArray& name, QWidget* parent)
    : QWidget(parent)
    , m_target(target)
    , m_name(name)
    , m_editor(makeValueEditor(*target, name))
    , m_resetButton(makeResetButton())
    , m_shown(propertyValue(*target, name))
{
    layOut();
    m_editor->setValue(m_shown);
    m_resetButton->setVisible(valueBeforeEdits(*target, name).isValid());
    connect(m_editor, &ValueEditor::edited, this, &PropertyRow::edit);
    connect(m_resetButton, &QToolButton::clicked, this, &PropertyRow::reset);
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
    const QVariant value = propertyValue(*m_target, m_name);
    if (value == m_shown)
        return;
    m_shown = value;
    m_editor->setValue(value);
}

void PropertyRow::layOut()
{
    QLabel* heading = touch::makeElidedLabel(QString::fromLatin1(m_name));
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 2, 0, 2);
    column->setSpacing(2);
    column->addLayout(row);
    if (m_editor->isNarrow()) {
        row->addWidget(heading, 1);
        row->addWidget(m_resetButton);
        row->addWidget(m_editor);
    } else {
        column->insertWidget(0, heading);
        row->addWidget(m_editor, 1);
        row->addWidget(m_resetButton, 0, Qt::AlignTop);
    }
}

void PropertyRow::edit(const QVariant& value)
{
    if (!m_target)
        return;
    rememberBeforeEdits(m_target, m_name);
    m_resetButton->show();
    write(value);
}

void PropertyRow::reset()
{
    if (!m_target)
        return;
    const QVariant before = valueBeforeEdits(*m_target, m_name);
    m_target->setProperty(memory(m_name).constData(), QVariant());
    m_resetButton->hide();
    write(before);
}

void PropertyRow::write(const QVariant& value)
{
    setPropertyValue(m_target, m_name, value);

    // Also where the property has kept its value: the editor still shows what was entered.
    if (m_target)
        m_shown = propertyValue(*m_target, m_name);
    m_editor->setValue(m_shown);
    Q_EMIT edited();
}

namespace {

bool passes(const QByteArray& name, const QString& filter)
{
    return QString::fromLatin1(name).contains(filter, Qt::CaseInsensitive);
}

} // namespace

PropertyGroup::PropertyGroup(const QString& title, QObject* target,
                             const QVector<QByteArray>& names, QWidget* parent)
    : QWidget(parent)
    , m_target(target)
    , m_names(names)
    , m_heading(touch::makeFoldButton(title))
    , m_body(nullptr)
{
    QFont font = m_heading->font();
    font.setBold(true);
    m_heading->setFont(font);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_heading);
    connect(m_heading, &QToolButton::toggled, this, &PropertyGroup::showRows);
}

QString PropertyGroup::title() const
{
    return m_heading->text();
}

const QVector<QByteArray>& PropertyGroup::names() const
{
    return m_names;
}

bool PropertyGroup::isUnfolded() const
{
    return m_heading->isChecked();
}

void PropertyGroup::setUnfolded(bool unfolded)
{
    m_heading->setChecked(unfolded);
}

void PropertyGroup::setFilter(const QString& text)
{
    m_filter = text;
    const bool isHit =
        std::any_of(m_names.cbegin(), m_names.cend(),
                    [this](const QByteArray& name) { return passes(name, m_filter); });
    setVisible(isHit);
    showRows(isUnfolded() || !m_filter.isEmpty());
}

void PropertyGroup::refresh()
{
    if (!m_body || m_body->isHidden())
        return;
    for (PropertyRow* row : qAsConst(m_rows))
        row->refresh();
}

void PropertyGroup::showRows(bool visible)
{
    if (!m_body && visible)
        makeRows();
    if (!m_body)
        return;
    filterRows();
    m_body->setVisible(visible);
    refresh();
}

void PropertyGroup::filterRows()
{
    for (PropertyRow* row : qAsConst(m_rows))
        row->setVisible(passes(row->name(), m_filter));
}

void PropertyGroup::makeRows()
{
    m_body = new QWidget;
    auto* column = new QVBoxLayout(m_body);
    column->setContentsMargins(4, 0, 4, 4);
    column->setSpacing(0);
    if (m_target) {
        for (const QByteArray& name : qAsConst(m_names)) {
            auto* row = new PropertyRow(m_target, name);
            connect(row, &PropertyRow::edited, this, &PropertyGroup::edited);
            column->addWidget(row);
            m_rows.append(row);
        }
    }
    layout()->addWidget(m_body);
}
