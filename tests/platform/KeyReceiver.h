#pragma once

#include <QStringList>
#include <QWidget>

namespace test {

/// A parent for keypads that writes down the key events that it receives.
class KeyReceiver : public QWidget
{
    Q_OBJECT

public:
    /// The events since the last call, each as "press KEY MODIFIERS TEXT" or "release …".
    QStringList takeEvents();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    QStringList m_events;
};

} // namespace test
