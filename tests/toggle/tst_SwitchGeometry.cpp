#include "Painting.h"
#include "Switch.h"
#include "TestApplication.h"

#include <QHBoxLayout>

#include <limits>

Q_DECLARE_METATYPE(Qt::LayoutDirection)
Q_DECLARE_METATYPE(QMargins)

class tst_SwitchGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areas_data();
    void areas();
    void sizeHint_data();
    void sizeHint();
    void sizeHintMeasuresWithTheWidgetsFont();
    void minimumSizeHintIsQts();
    void absurdMeasures_data();
    void absurdMeasures();
    void absurdMeasuresInLayout_data();
    void absurdMeasuresInLayout();
};

void tst_SwitchGeometry::areas_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("height");
    QTest::addColumn<QMargins>("margin");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("indicator");
    QTest::addColumn<QRect>("text");

    const QMargins even(8, 8, 8, 8);
    const QMargins uneven(1, 2, 30, 4);
    QTest::newRow("left to right") << Qt::LeftToRight << 40 << even << QSize(200, 60)
                                   << QRect(0, 0, 56, 40) << QRect(56, 0, 144, 60);
    QTest::newRow("right to left") << Qt::RightToLeft << 40 << even << QSize(200, 60)
                                   << QRect(144, 0, 56, 40) << QRect(0, 0, 144, 60);
    QTest::newRow("uneven margins") << Qt::LeftToRight << 20 << uneven << QSize(100, 20)
                                    << QRect(0, 0, 51, 20) << QRect(51, 0, 49, 20);
    QTest::newRow("uneven margins, right to left")
        << Qt::RightToLeft << 20 << uneven << QSize(100, 20) << QRect(49, 0, 51, 20)
        << QRect(0, 0, 49, 20);
    QTest::newRow("lower than its indicator") << Qt::LeftToRight << 40 << even << QSize(200, 10)
                                              << QRect(0, 0, 56, 40) << QRect(56, 0, 144, 10);
    QTest::newRow("narrower than its indicator") << Qt::RightToLeft << 40 << even << QSize(30, 40)
                                                 << QRect(-26, 0, 56, 40) << QRect(0, 0, -26, 40);
}

void tst_SwitchGeometry::areas()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, height);
    QFETCH(QMargins, margin);
    QFETCH(QSize, size);
    Switch control;
    control.setLayoutDirection(direction);
    control.setHeight(height);
    control.setIndicatorMargin(margin);
    control.resize(size);
    QTEST(control.indicatorRect(), "indicator");
    QTEST(control.textRect(), "text");
}

void tst_SwitchGeometry::sizeHint_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QMargins>("margin");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("indicator");

    QTest::newRow("default margins") << 40 << QMargins(8, 8, 8, 8) << QString() << QSize(56, 40);
    QTest::newRow("label") << 40 << QMargins(8, 8, 8, 8) << QStringLiteral("Label")
                           << QSize(56, 40);
    QTest::newRow("uneven margins")
        << 20 << QMargins(1, 2, 30, 4) << QStringLiteral("&A") << QSize(51, 20);
}

void tst_SwitchGeometry::sizeHint()
{
    QFETCH(int, height);
    QFETCH(QMargins, margin);
    QFETCH(QString, text);
    QFETCH(QSize, indicator);
    Switch control(text);
    control.setHeight(height);
    control.setIndicatorMargin(margin);
    control.resize(300, 300);
    const int textWidth = QFontMetrics(control.font()).horizontalAdvance(text);
    QCOMPARE(textWidth > 0, !text.isEmpty());
    QCOMPARE(control.sizeHint(), indicator + QSize(textWidth, 0));
}

void tst_SwitchGeometry::sizeHintMeasuresWithTheWidgetsFont()
{
    Switch control(QStringLiteral("Label"));
    const QSize before = control.sizeHint();
    QFont large = control.font();
    large.setPixelSize(60);
    control.setFont(large);
    QCOMPARE(control.sizeHint(), before);
    control.QWidget::setFont(large);
    QCOMPARE(control.sizeHint(),
             QSize(52 + QFontMetrics(large).horizontalAdvance(QStringLiteral("Label")), 36));
}

void tst_SwitchGeometry::minimumSizeHintIsQts()
{
    QCOMPARE(Switch(QStringLiteral("Label")).minimumSizeHint(), QSize());
}

void tst_SwitchGeometry::absurdMeasures_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QMargins>("margin");
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    for (const int height : {least, -1, 0, 36, most}) {
        for (const int margin : {least, -50, 0, most})
            QTest::addRow("height %d, margin %d", height, margin)
                << height << QMargins(margin, margin, margin, margin);
        QTest::addRow("height %d, opposite margins", height)
            << height << QMargins(least, most, most, least);
    }
}

// The sanitizers watch this one: no measure may overflow on the way to the screen.
void tst_SwitchGeometry::absurdMeasures()
{
    QFETCH(int, height);
    QFETCH(QMargins, margin);
    Switch control(QStringLiteral("Label"));
    control.resize(200, 40);
    control.setHeight(height);
    control.setIndicatorMargin(margin);
    QCOMPARE(control.indicatorHeight(), height);
    QCOMPARE(control.sizeHint().height(), qBound(-QWIDGETSIZE_MAX, height, QWIDGETSIZE_MAX));
    for (int state = 0; state < 8; ++state) {
        control.setLayoutDirection(state & 1 ? Qt::RightToLeft : Qt::LeftToRight);
        control.setEnabled(state & 2);
        control.setChecked(state & 4);
        QCOMPARE(control.indicatorRect().height(), control.sizeHint().height());
        QCOMPARE(control.textRect().width(), 200 - control.indicatorRect().width());
        test::paintedBy(control, 2);
    }
}

void tst_SwitchGeometry::absurdMeasuresInLayout_data()
{
    absurdMeasures_data();
}

void tst_SwitchGeometry::absurdMeasuresInLayout()
{
    QFETCH(int, height);
    QFETCH(QMargins, margin);
    QWidget window;
    QHBoxLayout layout(&window);
    layout.setContentsMargins(0, 0, 0, 0);
    auto* control = new Switch(QStringLiteral("Label"));
    layout.addWidget(control);
    control->setHeight(height);
    control->setIndicatorMargin(margin);
    control->updateGeometry();
    layout.activate();
    QVERIFY(layout.sizeHint().height() <= QWIDGETSIZE_MAX);
}

const test::Registration<tst_SwitchGeometry> registration;

#include "tst_SwitchGeometry.moc"
