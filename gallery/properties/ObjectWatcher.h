#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

/**
 * Tells when an object may have changed: a signal of it, a change event or a painting tells so.
 *
 * It looks at nothing by itself, so an object at rest costs nothing. Several changes in a short
 * time are told as one.
 */
class ObjectWatcher : public QObject
{
    Q_OBJECT

public:
    explicit ObjectWatcher(QObject* parent = nullptr);

    /// Watches \a target alone from now on; null for none.
    void setTarget(QObject* target);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed();

protected:
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void schedule();

private:
    void connectSignals();

    QPointer<QObject> m_target;
    QBasicTimer m_timer;
};
