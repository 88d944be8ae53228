#include "InvalidInputNote.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QLineEdit>
#include <QVariant>

namespace ui {

namespace {

constexpr char watchedProperty[] = "inputValid";

bool isAboutVerdict(const QEvent& event)
{
    return event.type() == QEvent::DynamicPropertyChange
        && static_cast<const QDynamicPropertyChangeEvent&>(event).propertyName() == watchedProperty;
}

bool isInvalid(const QLineEdit& field)
{
    const QVariant verdict = field.property(watchedProperty);
    return verdict.isValid() && !verdict.toBool();
}

/// What a screen reader is told: the application's words, else what Qt finds in their place.
QString descriptionOf(QLineEdit* field)
{
    return QAccessible::queryAccessibleInterface(field)->text(QAccessible::Description);
}

QString withNote(const QString& description)
{
    const QString note = QCoreApplication::translate("ui::LineEdit", "Invalid input");
    return description.isEmpty() ? note : note + QStringLiteral(". ") + description;
}

} // namespace

InvalidInputNote::InvalidInputNote(QLineEdit* field)
    : QObject(field)
    , m_field(field)
{
    field->installEventFilter(this);
}

bool InvalidInputNote::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && isAboutVerdict(*event)) {
        withdraw();
        if (isInvalid(*m_field))
            show();
    }
    return QObject::eventFilter(watched, event);
}

void InvalidInputNote::show()
{
    m_given = m_field->accessibleDescription();
    m_shown = withNote(descriptionOf(m_field));
    m_field->setAccessibleDescription(m_shown);
}

/// Leaves alone what the application has written in the meantime.
void InvalidInputNote::withdraw()
{
    if (!m_shown.isNull() && m_field->accessibleDescription() == m_shown)
        m_field->setAccessibleDescription(m_given);
    m_shown = QString();
}

} // namespace ui
