#pragma once

#include <QPlainTextEdit>

class SignalListener;

/// Writes down the signals of objects as they come, with what they carry.
class SignalLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget* parent = nullptr);

    /// Listens to \a object, which it calls \a name. Signals of QWidget and QObject are left out,
    /// and so is what a field that hides its text would tell of it.
    void listenTo(QObject* object, const QString& name);

    /// Listens to nothing any more, and forgets what it has heard.
    void reset();

private:
    friend class SignalListener;

    void note(const QString& text);

    QList<SignalListener*> m_listeners;
    QString m_last;
    int m_repetitions = 0;
};
