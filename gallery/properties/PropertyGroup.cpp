#include "PropertyGroup.h"

#include "PropertyRow.h"
#include "Touch.h"

#include <QBoxLayout>
#include <QToolButton>

#include <algorithm>

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
