#pragma once

#include <QColor>

QT_BEGIN_NAMESPACE
class QImage;
class QRect;
QT_END_NAMESPACE

namespace test {

/// The contrast of two opaque colours as WCAG 2 defines it, from 1 to 21; text takes 4.5, icons
/// take 3.
double contrast(const QColor& a, const QColor& b);

/// Between the colour that most of \a rect of \a picture has and the one that stands out most from
/// it.
double contrastIn(const QImage& picture, const QRect& rect);

} // namespace test
