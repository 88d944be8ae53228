#include "InvalidInput.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QLineEdit>
#include <QVariant>

namespace ui {

namespace {

// Set while there is a note: the application's own description, and the one in its place.
constexpr char noteProperty[] = "_invalidInputNote";

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

void addNote(QLineEdit& field)
{
    const QString given = field.accessibleDescription();
    const QString noted = withNote(descriptionOf(&field));
    field.setProperty(noteProperty, QStringList{given, noted});
    field.setAccessibleDescription(noted);
}

/// Leaves alone what the application has written in the meantime.
void removeNote(QLineEdit& field)
{
    const QStringList descriptions = field.property(noteProperty).toStringList();
    if (descriptions.isEmpty())
        return;
    if (field.accessibleDescription() == descriptions.last())
        field.setAccessibleDescription(descriptions.first());
    field.setProperty(noteProperty, QVariant());
}

} // namespace

void describeValidity(QLineEdit& field, bool valid)
{
    removeNote(field);
    if (!valid)
        addNote(field);
}

} // namespace ui
