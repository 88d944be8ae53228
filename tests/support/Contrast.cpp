#include "Contrast.h"

#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>

namespace test {

namespace {

double linear(double value)
{
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

double contrastIn(const QImage& picture, const QRect& rect)
{
    QHash<QRgb, int> counts;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QRgb ground = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (count.value() > counts.value(ground))
            ground = count.key();
    }
    double best = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        best = std::max(best, contrast(ground, count.key()));
    return best;
}

} // namespace test
