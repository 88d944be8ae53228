#pragma once

#include <QPointer>
#include <QWidget>

namespace soak {

/// Two windows, one with a layout and one without, and neighbours in each that take the focus.
class Stage
{
    Q_DISABLE_COPY(Stage)

public:
    Stage();
    ~Stage();

    QWidget* window(bool withLayout) const;
    /// A field or a button beside the widgets under test.
    QWidget* neighbour(bool withLayout, bool button) const;
    /// Deletes a window, with all that is in it, and makes another.
    void replaceWindow(bool withLayout);
    /// Puts \a widget into a window, with or without its layout.
    void place(QWidget* widget, bool withLayout) const;

private:
    QPointer<QWidget> m_windows[2];
};

/// One turn of the event loop, with the deletions that are due.
void turnEventLoop();

} // namespace soak
