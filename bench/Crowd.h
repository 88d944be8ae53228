#pragma once

#include <QVector>
#include <QWidget>

#include <functional>

namespace bench {

/// Many widgets of one class, side by side in one window.
class Crowd
{
    Q_DISABLE_COPY(Crowd)

public:
    using Maker = std::function<QWidget*(QWidget* parent)>;

    Crowd(Maker maker, int size);

    void make();
    /// Shows the widgets, and paints them.
    void show();
    void destroy();

private:
    QWidget m_window;
    Maker m_maker;
    QVector<QWidget*> m_members;
};

} // namespace bench
