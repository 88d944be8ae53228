#include "GalleryPage.h"
#include "pages/Pages.h"
#include "Painting.h"
#include "PowerSupplyTree.h"
#include "SystemBattery.h"
#include "TestApplication.h"

#include "ui/CBatteryStatusWidget.h"
#include <Switch.h>

#include <QSlider>

#include <memory>

using test::PowerSupplyTree;
using ui::CBatteryStatusWidget;

namespace {

/// The area that the gallery gives its pages.
constexpr QSize pageSize(420, 420);

CBatteryStatusWidget* demoWidget(const GalleryPage& page, const QString& name)
{
    for (const GalleryPage::DemoWidget& candidate : page.demoWidgets()) {
        if (candidate.name == name)
            return qobject_cast<CBatteryStatusWidget*>(candidate.widget);
    }
    return nullptr;
}

/// Whether two batteries of the same size look the same.
bool looksLike(CBatteryStatusWidget* battery, int percent, bool present, bool charging)
{
    CBatteryStatusWidget expected;
    expected.setChargePercentage(percent);
    expected.setBatteryPresent(present);
    expected.setBatteryCharging(charging);
    expected.setPalette(battery->palette());
    expected.resize(battery->size());
    return test::paintedBy(*battery) == test::paintedBy(expected);
}

} // namespace

class tst_BatteryPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitsItsArea();
    void showsEveryKind();
    void columnKeepsTheShape();
    void systemBatteryIsAbsentWithoutOne();
    void systemBatteryIsFollowed();
    void controlsMoveTheirBattery();
};

void tst_BatteryPage::fitsItsArea()
{
    const std::unique_ptr<GalleryPage> page(makeBatteryPage(nullptr));
    const QSize least = page->minimumSizeHint();
    QVERIFY2(least.width() <= pageSize.width(), qPrintable(QString::number(least.width())));
    QVERIFY2(least.height() <= pageSize.height(), qPrintable(QString::number(least.height())));
}

void tst_BatteryPage::showsEveryKind()
{
    const std::unique_ptr<GalleryPage> page(makeBatteryPage(nullptr));
    QVERIFY(looksLike(demoWidget(*page, QStringLiteral("0 %")), 0, true, false));
    QVERIFY(looksLike(demoWidget(*page, QStringLiteral("50 %")), 50, true, false));
    QVERIFY(looksLike(demoWidget(*page, QStringLiteral("100 %")), 100, true, false));
    QVERIFY(looksLike(demoWidget(*page, QStringLiteral("Absent")), 0, false, false));
    QVERIFY(looksLike(demoWidget(*page, QStringLiteral("Charging")), 60, true, true));
    for (const char* name : {"Green", "Red", "Frame 1", "Frame 2", "Frame 6", "Small", "Try me"})
        QVERIFY2(demoWidget(*page, QString::fromLatin1(name)), name);
}

void tst_BatteryPage::columnKeepsTheShape()
{
    QWidget window;
    GalleryPage* page = makeBatteryPage(&window);
    page->resize(pageSize);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const CBatteryStatusWidget* const battery =
        demoWidget(*page, QStringLiteral("Height for width"));
    QVERIFY(battery);
    QCOMPARE(battery->height(), battery->heightForWidth(battery->width()));
}

void tst_BatteryPage::systemBatteryIsAbsentWithoutOne()
{
    const PowerSupplyTree tree;
    QWidget window;
    GalleryPage* page = makeBatteryPage(&window, SystemBattery(tree.path()));
    window.show();
    QVERIFY(looksLike(demoWidget(*page, QStringLiteral("This device")), 0, false, false));
}

void tst_BatteryPage::systemBatteryIsFollowed()
{
    PowerSupplyTree tree;
    tree.addBattery("BAT0", "64", "Charging");
    QWidget window;
    GalleryPage* page = makeBatteryPage(&window, SystemBattery(tree.path()));
    window.show();
    CBatteryStatusWidget* const battery = demoWidget(*page, QStringLiteral("This device"));
    QVERIFY(looksLike(battery, 64, true, true));

    tree.addBattery("BAT0", "31", "Discharging");
    Q_EMIT page->findChild<PowerSupplyEvents*>()->changed();
    QVERIFY(looksLike(battery, 31, true, false));

    page->hide();
    tree.addBattery("BAT0", "12", "Discharging");
    page->show();
    QVERIFY(looksLike(battery, 12, true, false));
}

void tst_BatteryPage::controlsMoveTheirBattery()
{
    const std::unique_ptr<GalleryPage> page(makeBatteryPage(nullptr));
    CBatteryStatusWidget* const battery = demoWidget(*page, QStringLiteral("Try me"));
    const QList<Switch*> boxes = page->findChildren<Switch*>();
    QCOMPARE(boxes.size(), 2);
    page->findChild<QSlider*>()->setValue(20);
    boxes.at(1)->setChecked(true);
    QVERIFY(looksLike(battery, 20, true, true));
    boxes.at(0)->setChecked(false);
    QVERIFY(looksLike(battery, 20, false, true));
}

const test::Registration<tst_BatteryPage> registration;

#include "tst_BatteryPage.moc"
