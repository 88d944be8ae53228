#pragma once

#include <QObject>

namespace soak {

/**
 * Ends every menu that opens in the next turn of the event loop: a menu has an event loop of its own,
 * in which no step is played. Chooses the first entry every other time.
 */
class MenuCloser : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole application.
    MenuCloser();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_choose = false;
};

} // namespace soak
