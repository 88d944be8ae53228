#pragma once

#include <QWidget>

#include <utility>

namespace bench {

/// Delivers events until none is left: what was changed is painted then.
void deliverEvents();

/// Presses and releases the left mouse button on \a widget, where a check box has its mark, with
/// the painting that follows each.
void click(QWidget& widget);

/// Whether a view in \a browser has a row for each of \a count files.
bool showsFiles(const QWidget& browser, int count);

/// A widget in a window that is shown, as a user sees it.
template <typename Widget>
class Shown
{
public:
    /// Made with \a arguments and the window, which is as large as a device's screen.
    template <typename... Arguments>
    explicit Shown(const QSize& size, Arguments&&... arguments)
        : m_widget(new Widget(std::forward<Arguments>(arguments)..., &m_window))
    {
        m_window.resize(800, 480);
        m_widget->resize(size);
        m_window.show();
        deliverEvents();
    }

    Widget& operator*() const
    {
        return *m_widget;
    }
    Widget* operator->() const
    {
        return m_widget;
    }

private:
    QWidget m_window;
    Widget* m_widget;
};

} // namespace bench
