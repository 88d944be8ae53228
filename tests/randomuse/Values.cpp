#include "Values.h"

#include <QWidget>

#include <limits>

namespace test {

namespace {

constexpr int ordinaryInOutOf = 4; // of four values, three are ordinary

} // namespace

Values::Values(quint32 seed)
    : m_generator(seed)
{
}

bool Values::boolean()
{
    return below(2) == 1;
}

int Values::below(int end)
{
    return m_generator.bounded(end);
}

int Values::integer()
{
    using Limits = std::numeric_limits<int>;
    if (below(ordinaryInOutOf) > 0)
        return below(101);
    return oneOf({Limits::min(), Limits::min() + 1, -32769, -1, 0, 32767, 32768, 65536,
                  Limits::max() / 2, Limits::max() - 1, Limits::max(),
                  int(m_generator.generate())});
}

double Values::number()
{
    using Limits = std::numeric_limits<double>;
    if (below(ordinaryInOutOf) > 0)
        return m_generator.generateDouble();
    return oneOf({-1.0, 1.5, 1e10, -1e300, Limits::min(), Limits::max(), Limits::infinity(),
                  -Limits::infinity(), Limits::quiet_NaN()});
}

QString Values::text()
{
    if (below(ordinaryInOutOf) > 0)
        return name();
    const QString loneSurrogate(QChar(0xd800));
    return oneOf({QString(), QString(200, QLatin1Char('W')), QStringLiteral("\u05d0\u05d1 12"),
                  QStringLiteral("a\nb\tc"), loneSurrogate, QStringLiteral("<b>&amp;</b>"),
                  QString(3, QChar(QChar::Null)), QStringLiteral("-12,5")});
}

QString Values::name()
{
    const QString letters = QStringLiteral("abcxyz0123456789");
    QString result;
    for (int left = 1 + below(8); left > 0; --left)
        result += letters.at(below(letters.size()));
    return result;
}

QColor Values::color()
{
    if (below(ordinaryInOutOf) > 0)
        return QColor::fromRgba(m_generator.generate());
    return oneOf({QColor(), QColor(Qt::transparent), QColor(Qt::black), QColor(Qt::white)});
}

QSize Values::size()
{
    const auto length = [this] {
        if (below(2 * ordinaryInOutOf) > 0)
            return below(400);
        return oneOf({0, 1, 2, 5, 2000, 32767, 40000, QWIDGETSIZE_MAX});
    };
    const int width = length();
    return {width, length()};
}

QPoint Values::pointIn(const QSize& area)
{
    const int x = below(qMax(area.width(), 1));
    return {x, below(qMax(area.height(), 1))};
}

} // namespace test
