#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace ui {

/**
 * Lets one tap open one directory.
 *
 * The press that opens a directory leaves the finger on whatever that directory has at this place.
 * A finger that trembles then, or taps twice, would select there, and so open the next one. The
 * view does not learn of those moves and of that double click.
 */
class TapGuard : public QObject
{
public:
    /// Watches the \a viewport of the view that directories are opened in.
    explicit TapGuard(QWidget* viewport);

    /// To be called when the view has opened a directory.
    void directoryOpened();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_pressed = false;
    bool m_opened = false; ///< Whether the last tap has opened a directory.
};

} // namespace ui
