#pragma once

#include <QRect>
#include <QVector>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QJsonObject>
#endif

namespace test {

/// Says on the platform "offscreen" that there are other screens than that of the test, until it
/// is destroyed.
class Desktop
{
public:
    explicit Desktop(const QVector<QRect>& screens);
    ~Desktop();

private:
    Q_DISABLE_COPY(Desktop)

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QRect m_previous;
#else
    const QJsonObject m_previous;
#endif
};

} // namespace test
