#pragma once

#include <QBrush>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QStylePainter;
QT_END_NAMESPACE

namespace test {

/// The rules of ui::CBatteryStatusWidget word by word, without regard to what overflows: what the
/// widget is compared with.
class ReferenceBattery : public QWidget
{
public:
    explicit ReferenceBattery(QWidget* parent);

    int heightForWidth(int w) const override;
    int widthForHeight(int h) const;
    int getBatteryRectWidth(int w) const;
    static int getBatteryRectHeight(int w);
    static int getTopRectWidth(int w);
    static int getTopRectHeight(int w);
    int getTotalHeight(int bodyHeight, int topHeight) const;

    void setFrameWidth(int width);
    void setFillColor(const QColor& color);
    void setChargePercentage(int percent);
    void setBatteryPresent(bool present);
    void setBatteryCharging(bool charging);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paintBatteryFill(QStylePainter& painter);
    void paintBatteryFrame(QStylePainter& painter, bool paintTop, bool paintBody);
    void paintChargingIcon(QStylePainter& painter);

    int m_frameWidth = -1;
    double m_cornerRadius = -1.0;
    int m_flags = 1;
    double m_charge = 0.0;
    QRect m_batteryRect;
    QRect m_topRect;
    QRect m_chargingIconRect;
    QBrush m_fillBrush;
};

} // namespace test
