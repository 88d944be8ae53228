#pragma once

#include <QObject>
#include <QStringList>

namespace ui {
class KeypadLineEdit;
class LineEdit;
} // namespace ui

namespace test {

/**
 * Writes down the signals of a line edit as "name" or "name(argument)", in the order in which the
 * slots of an application see them: signals that the field reacts to itself come after that
 * reaction.
 */
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(ui::LineEdit* edit);
    explicit SignalLog(ui::KeypadLineEdit* edit);

    /// The signals since the last call.
    QStringList take();

private:
    void add(const QString& entry);

    QStringList m_entries;
};

} // namespace test
