#pragma once

#include <QProxyStyle>

/**
 * Fusion for touch screens.
 *
 * Whatever can be tapped is at least touch::targetSize pixels high, a slider goes where it is
 * pressed, and a text that is too long for its control is elided. A text that is written from left
 * to right is so in a mirrored application, too, with its numbers and signs.
 */
class TouchStyle : public QProxyStyle
{
    Q_OBJECT

public:
    TouchStyle();

    /// Makes it the style of the application.
    static void install();

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole textRole) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};
