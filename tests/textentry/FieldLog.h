#pragma once

#include <QObject>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QMetaMethod;
QT_END_NAMESPACE

namespace test {

/**
 * Writes down whatever can be observed of an object from outside, in its order: each event that it
 * gets as "KeyPress", the change of a dynamic property with its new value, and each of its signals
 * as "textEdited(1)". A signal that the object reacts to itself comes after that reaction.
 */
class FieldLog : public QObject
{
public:
    explicit FieldLog(QObject* object);

    /// Adds an entry of a test's own.
    void add(const QString& entry);

    /// The entries since the last call.
    QStringList take();

    bool eventFilter(QObject* watched, QEvent* event) override;
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    QString textOf(const QMetaMethod& signal, void** arguments) const;

    QObject* m_object;
    QStringList m_entries;
};

} // namespace test
