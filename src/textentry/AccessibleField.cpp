#include "AccessibleField.h"

#include "../frame/AccessibleFactory.h"
#include "InvalidInput.h"
#include "ui/LineEdit.h"

#include <QColor>
#include <QScopedValueRollback>

namespace ui {

namespace {

QAccessibleInterface* makeField(LineEdit* field)
{
    return new AccessibleField(field);
}

/// An interface for each field, but none while its constructor asks for the one of the base class.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    static const QObject* beingMade = nullptr;
    if (object == beingMade)
        return nullptr;
    const QScopedValueRollback<const QObject*> rollback(beingMade, object);
    return makeAccessible<LineEdit, makeField>(className, object);
}

} // namespace

AccessibleField::AccessibleField(LineEdit* field)
    : m_plain(QAccessible::queryAccessibleInterface(field))
    , m_plainId(QAccessible::uniqueId(m_plain))
{
    // mutant [dropped]: Qt asserts that it knows no other interface of an object when it gets to
    // know one; without its assertions it forgets the other.
    releasePlainInterface(field);
}

AccessibleField::~AccessibleField()
{
    if (m_plain)
        QAccessible::deleteAccessibleInterface(m_plainId);
}

/// Lets Qt ask for a new interface of \a field, and keeps the present one, which deleting it would
/// not.
void AccessibleField::releasePlainInterface(LineEdit* field)
{
    auto* standIn = new AccessibleField;
    const QAccessible::Id id = QAccessible::registerAccessibleInterface(standIn);
    // mutant [dropped; order]: Of no object, it would release nothing; Qt's assertions notice.
    standIn->m_standsFor = field;
    QAccessible::deleteAccessibleInterface(id);
}

QString AccessibleField::text(QAccessible::Text kind) const
{
    QString plain = m_plain->text(kind);
    if (kind != QAccessible::Description || !hasInvalidInput(object()))
        return plain;
    const QString note = LineEdit::tr("Invalid input");
    return plain.isEmpty() ? note : note + QStringLiteral(". ") + plain;
}

bool AccessibleField::isValid() const
{
    return m_plain->isValid();
}

QObject* AccessibleField::object() const
{
    return m_plain ? m_plain->object() : m_standsFor;
}

QWindow* AccessibleField::window() const
{
    return m_plain->window();
}

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleField::relations(QAccessible::Relation match) const
{
    return m_plain->relations(match);
}

QAccessibleInterface* AccessibleField::focusChild() const
{
    return m_plain->focusChild();
}

QAccessibleInterface* AccessibleField::childAt(int x, int y) const
{
    return m_plain->childAt(x, y);
}

QAccessibleInterface* AccessibleField::parent() const
{
    return m_plain->parent();
}

QAccessibleInterface* AccessibleField::child(int index) const
{
    return m_plain->child(index);
}

int AccessibleField::childCount() const
{
    return m_plain->childCount();
}

int AccessibleField::indexOfChild(const QAccessibleInterface* child) const
{
    return m_plain->indexOfChild(child);
}

void AccessibleField::setText(QAccessible::Text kind, const QString& text)
{
    m_plain->setText(kind, text);
}

QRect AccessibleField::rect() const
{
    return m_plain->rect();
}

QAccessible::Role AccessibleField::role() const
{
    return m_plain->role();
}

QAccessible::State AccessibleField::state() const
{
    return m_plain->state();
}

QColor AccessibleField::foregroundColor() const
{
    return m_plain->foregroundColor();
}

QColor AccessibleField::backgroundColor() const
{
    return m_plain->backgroundColor();
}

void AccessibleField::virtual_hook(int id, void* data)
{
    // mutant [dropped]: Nothing is asked through it yet.
    m_plain->virtual_hook(id, data);
}

void* AccessibleField::interface_cast(QAccessible::InterfaceType type)
{
    return m_plain->interface_cast(type);
}

void registerAccessibleFields()
{
    static const AccessibleFactory factory(makeInterface);
    factory.install();
}

} // namespace ui
