#include "TestApplication.h"

#include "GalleryPage.h"
#include "pages/Pages.h"
#include <ui/ScrollIndicatorBar.h>

#include <QScrollArea>
#include <QScroller>
#include <QWindow>

using ui::widgets::ScrollIndicatorBar;

namespace {

bool isHighlighted(ScrollIndicatorBar& bar)
{
    const QImage image = bar.grab().toImage();
    const QColor highlight = bar.palette().color(QPalette::Highlight);
    for (int i = 0; i < qMax(image.width(), image.height()); ++i) {
        const QPoint first = bar.orientation() == Qt::Horizontal ? QPoint(i, 0) : QPoint(0, i);
        if (image.pixelColor(first) == highlight)
            return true;
    }
    return false;
}

} // namespace

class tst_ScrollIndicatorPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void highlightsWhileDragged_data();
    void highlightsWhileDragged();
};

void tst_ScrollIndicatorPage::highlightsWhileDragged_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("step");
    QTest::newRow("vertical") << QStringLiteral("list") << QPoint(0, -12);
    QTest::newRow("horizontal") << QStringLiteral("panorama") << QPoint(-12, 0);
}

void tst_ScrollIndicatorPage::highlightsWhileDragged()
{
    QFETCH(QString, name);
    QFETCH(QPoint, step);
    QWidget window;
    GalleryPage* page = makeScrollIndicatorPage(&window);
    page->resize(410, 420);
    window.resize(410, 420);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    auto* area = page->findChild<QScrollArea*>(name);
    QVERIFY(area);
    QScrollBar* bar = step.x() ? area->horizontalScrollBar() : area->verticalScrollBar();
    auto* indicator = qobject_cast<ScrollIndicatorBar*>(bar);
    QVERIFY(indicator);
    QVERIFY(!isHighlighted(*indicator));

    QWidget* viewport = area->viewport();
    QPoint point = viewport->mapTo(&window, viewport->rect().center());
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, point);
    for (int i = 0; i < 5; ++i) {
        point += step;
        QTest::mouseMove(window.windowHandle(), point);
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(indicator->value() > 0);
    QVERIFY(isHighlighted(*indicator));

    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, point);
    QTRY_COMPARE(QScroller::scroller(viewport)->state(), QScroller::Inactive);
    QVERIFY(!isHighlighted(*indicator));
}

const test::Registration<tst_ScrollIndicatorPage> registration;

#include "tst_ScrollIndicatorPage.moc"
