#pragma once

#include <QColor>
#include <QPoint>
#include <QRandomGenerator>
#include <QSize>
#include <QString>

#include <initializer_list>

namespace test {

/// Draws what an action needs, ordinary values and absurd ones, always the same from the same seed.
class Values
{
public:
    explicit Values(quint32 seed);

    bool boolean();
    /// From 0 on, less than \a end, which is 1 at least.
    int below(int end);
    /// Mostly from 0 to 100, else anything from one end of the range of int to the other.
    int integer();
    /// Mostly from 0 to 1, else anything, infinite values and no number included.
    double number();
    /// Letters and digits mostly, else empty, long, right-to-left or not even text.
    QString text();
    /// A name of a file or directory.
    QString name();
    /// Any colour, the invalid one included.
    QColor color();
    /// Of a widget: mostly what fits a screen, else up to Qt's limit.
    QSize size();
    QPoint pointIn(const QSize& area);

    template <typename T>
    T oneOf(std::initializer_list<T> values)
    {
        return *(values.begin() + below(int(values.size())));
    }

private:
    QRandomGenerator m_generator;
};

} // namespace test
