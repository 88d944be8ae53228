#include "ClickableLabel.h"

#include "Painting.h"
#include "Palettes.h"
#include "TestApplication.h"

#include <QPainter>

#include <memory>

using namespace test;

namespace {

const QString longText = QStringLiteral("A name that is much too long for its label");

/// What the rule makes of \a text at a baseline of \a baseline pixels.
QImage expectedImage(const ClickableLabel& label, qreal devicePixelRatio, const QString& shown,
                     int baseline)
{
    QImage image = canvas(label.size(), devicePixelRatio);
    QPainter painter(&image);
    painter.setFont(label.font());
    painter.setPen(label.palette().color(label.foregroundRole()));
    painter.setLayoutDirection(label.layoutDirection());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.drawText(QPointF(0, baseline), shown);
    return image;
}

class PressCounter : public QWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        ++presses;
    }
};

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_ClickableLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signalsOnly();
    void clicksOnPress_data();
    void clicksOnPress();
    void releaseAndMoveDoNothing();
    void pressIsNotPassedToTheLabel();
    void deletedInItsOwnSlot();
    void painting_data();
    void painting();
    void baselineAddsThePositionInTheParent();
    void elidedInTheMiddle();
    void markupIsPaintedAsItStands();
    void neitherFrameNorAlignment();
    void emptyAndTiny();
};

void tst_ClickableLabel::signalsOnly()
{
    const QMetaObject& meta = ClickableLabel::staticMetaObject;
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("clicked()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(ClickableLabel().windowFlags(), QLabel().windowFlags());
}

void tst_ClickableLabel::clicksOnPress_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_ClickableLabel::clicksOnPress()
{
    QFETCH(Qt::MouseButton, button);
    ClickableLabel label;
    const QSignalSpy clicked(&label, &ClickableLabel::clicked);
    QTest::mousePress(&label, button);
    QCOMPARE(clicked.count(), 1);
    QTest::mouseRelease(&label, button);
    QCOMPARE(clicked.count(), 1);
}

void tst_ClickableLabel::releaseAndMoveDoNothing()
{
    ClickableLabel label;
    const QSignalSpy clicked(&label, &ClickableLabel::clicked);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QTest::mouseMove(&label, QPoint(3, 3));
    QCOMPARE(clicked.count(), 0);
}

// A label leaves a press that it has no use for to its parent; a clickable one keeps it.
void tst_ClickableLabel::pressIsNotPassedToTheLabel()
{
    PressCounter parent;
    QLabel plain(&parent);
    ClickableLabel clickable(&parent);
    QTest::mousePress(&plain, Qt::LeftButton);
    QCOMPARE(parent.presses, 1);
    QTest::mousePress(&clickable, Qt::LeftButton);
    QCOMPARE(parent.presses, 1);
}

void tst_ClickableLabel::deletedInItsOwnSlot()
{
    const QPointer<ClickableLabel> label(new ClickableLabel);
    connect(label.data(), &ClickableLabel::clicked, this, [&] { delete label.data(); });
    QTest::mousePress(label.data(), Qt::LeftButton);
    QVERIFY(label.isNull());
}

void tst_ClickableLabel::painting_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<qreal>("devicePixelRatio");
    QTest::addColumn<QString>("text");
    for (const bool dark : {false, true}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const bool enabled : {true, false}) {
                for (const int ratio : {1, 2}) {
                    for (const QString& text : {QStringLiteral("short"), longText}) {
                        QTest::addRow("%s %s %s @%d %s", dark ? "dark" : "light",
                                      direction == Qt::LeftToRight ? "ltr" : "rtl",
                                      enabled ? "enabled" : "disabled", ratio,
                                      qPrintable(text.left(5)))
                            << (dark ? darkPalette() : lightPalette()) << direction << enabled
                            << qreal(ratio) << text;
                    }
                }
            }
        }
    }
}

void tst_ClickableLabel::painting()
{
    QFETCH(QPalette, palette);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, enabled);
    QFETCH(qreal, devicePixelRatio);
    QFETCH(QString, text);
    ClickableLabel label;
    label.setPalette(palette);
    label.setLayoutDirection(direction);
    label.setEnabled(enabled);
    label.setText(text);
    label.resize(120, 30);

    const QFontMetrics metrics(label.font());
    const QString shown = metrics.elidedText(text, Qt::ElideMiddle, 120);
    QVERIFY(sameImage(paintedBy(label, devicePixelRatio),
                      expectedImage(label, devicePixelRatio, shown, 30 - metrics.height() / 2)));
}

void tst_ClickableLabel::baselineAddsThePositionInTheParent()
{
    QWidget parent;
    ClickableLabel label(&parent);
    label.setText(QStringLiteral("lower"));
    label.setGeometry(5, 7, 100, 40);
    const int halfFont = QFontMetrics(label.font()).height() / 2;
    QVERIFY(sameImage(paintedBy(label), expectedImage(label, 1, label.text(), 7 + 40 - halfFont)));
    label.move(5, -11);
    QVERIFY(
        sameImage(paintedBy(label), expectedImage(label, 1, label.text(), -11 + 40 - halfFont)));
}

void tst_ClickableLabel::elidedInTheMiddle()
{
    ClickableLabel label;
    label.setText(longText);
    label.resize(150, 30);
    const QFontMetrics metrics(label.font());
    QVERIFY(metrics.horizontalAdvance(longText) > 150);
    const QString shown = metrics.elidedText(longText, Qt::ElideMiddle, 150);
    QVERIFY(shown.startsWith(QLatin1Char('A')) && shown.endsWith(QStringLiteral("label")));
    QVERIFY(sameImage(paintedBy(label), expectedImage(label, 1, shown, 30 - metrics.height() / 2)));
}

void tst_ClickableLabel::markupIsPaintedAsItStands()
{
    ClickableLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(QStringLiteral("<b>a</b> & b"));
    label.resize(200, 30);
    QVERIFY(sameImage(
        paintedBy(label),
        expectedImage(label, 1, label.text(), 30 - QFontMetrics(label.font()).height() / 2)));
}

void tst_ClickableLabel::neitherFrameNorAlignment()
{
    ClickableLabel label;
    label.setText(QStringLiteral("plain"));
    label.resize(120, 30);
    const QImage plain = paintedBy(label);
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setLineWidth(3);
    label.setMargin(8);
    label.setIndent(20);
    label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    QVERIFY(sameImage(paintedBy(label), plain));
}

void tst_ClickableLabel::emptyAndTiny()
{
    ClickableLabel label;
    label.resize(40, 20);
    QVERIFY(sameImage(paintedBy(label), canvas(QSize(40, 20))));
    label.setText(longText);
    label.resize(1, 1);
    paintedBy(label);
}

const test::Registration<tst_ClickableLabel> registration;

#include "tst_ClickableLabel.moc"
