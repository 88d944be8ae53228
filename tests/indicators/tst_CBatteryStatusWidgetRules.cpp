#include "Painting.h"
#include "ReferenceBattery.h"
#include "TestApplication.h"

#include <ui/CBatteryStatusWidget.h>

#include <QRandomGenerator>

namespace {

constexpr int seeds = 8;
constexpr int commands = 150;

/// The same commands for the widget and for its rules, each in a window of its own.
class Pair
{
public:
    explicit Pair(quint32 seed)
        : m_random(seed)
    {
        m_windows[0].resize(200, 200);
        m_windows[1].resize(200, 200);
    }

    bool play();

private:
    int oneOf(const QVector<int>& values)
    {
        return values.at(m_random.bounded(values.size()));
    }
    template <typename Command>
    void both(Command command)
    {
        command(m_widget);
        command(m_reference);
    }
    void configure();
    bool agree();

    QRandomGenerator m_random;
    QWidget m_windows[2];
    ui::CBatteryStatusWidget m_widget{&m_windows[0]};
    test::ReferenceBattery m_reference{&m_windows[1]};
};

void Pair::configure()
{
    const int number = oneOf({-300, -6, -5, -2, -1, 0, 1, 2, 3, 4, 5, 14, 57, 99, 100, 150, 300});
    const bool yes = m_random.bounded(2);
    const QColor color = QColor::fromRgba(m_random.generate());
    const QSize size(1 + m_random.bounded(150), 1 + m_random.bounded(150));
    switch (m_random.bounded(10)) {
    case 0:
        return both([&](auto& battery) { battery.setChargePercentage(number); });
    case 1:
        return both([&](auto& battery) { battery.setBatteryPresent(yes); });
    case 2:
        return both([&](auto& battery) { battery.setBatteryCharging(yes); });
    case 3:
        return both([&](auto& battery) { battery.setFrameWidth(number); });
    case 4:
        return both([&](auto& battery) { battery.setFillColor(yes ? color : QColor()); });
    case 5:
        return both([&](auto& battery) { battery.setContentsMargins(3, number / 10, 0, 7); });
    case 6:
        return both([&](auto& battery) { battery.setEnabled(yes); });
    case 7:
        return both([&](auto& battery) {
            battery.setForegroundRole(yes ? QPalette::Link : QPalette::WindowText);
        });
    default:
        both([&](auto& battery) { battery.resize(size); });
    }
}

bool Pair::agree()
{
    const int number = m_random.bounded(-1000, 1000);
    const qreal ratio = oneOf({4, 5, 6, 8}) / 4.0;
    QRegion region; // all of it, or a part
    if (m_random.bounded(3) == 0)
        region = QRect(m_random.bounded(60), m_random.bounded(60), 1 + m_random.bounded(40),
                       1 + m_random.bounded(40));
    return m_widget.heightForWidth(number) == m_reference.heightForWidth(number)
        && m_widget.widthForHeight(number) == m_reference.widthForHeight(number)
        && test::sameImage(test::paintedBy(m_widget, ratio, region),
                           test::paintedBy(m_reference, ratio, region));
}

bool Pair::play()
{
    for (int command = 0; command < commands; ++command) {
        configure();
        if (!agree()) {
            qInfo("after %d commands", command + 1);
            return false;
        }
    }
    return true;
}

} // namespace

/// Compares the widget with its rules, written down a second time, under random commands.
class tst_CBatteryStatusWidgetRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsItsRules_data();
    void isAsItsRules();
};

void tst_CBatteryStatusWidgetRules::isAsItsRules_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= seeds; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_CBatteryStatusWidgetRules::isAsItsRules()
{
    QFETCH(quint32, seed);
    QVERIFY(Pair(seed).play());
}

const test::Registration<tst_CBatteryStatusWidgetRules> registration;

#include "tst_CBatteryStatusWidgetRules.moc"
