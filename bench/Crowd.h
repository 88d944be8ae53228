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
    using Ready = bool (*)(const QWidget* member);

    /// Shown as soon as each member is \a ready, or at once.
    Crowd(Maker maker, int size, Ready ready);

    void make();
    /// Shows the widgets, and delivers events until all is painted.
    void show();
    void destroy();

private:
    bool isReady() const;

    QWidget m_window;
    Maker m_maker;
    Ready m_ready;
    QVector<QWidget*> m_members;
};

} // namespace bench
