#include "Appearance.h"
#include "GalleryPage.h"
#include "pages/Pages.h"
#include "properties/PropertyEditor.h"
#include "ShownGallery.h"
#include "TestApplication.h"
#include "Translations.h"

#include <ClickableLabel.h>
#include <Switch.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QTranslator>

using test::imageOf;
using test::ShownGallery;

namespace {

/// Columns without ink before the text of \a label in its direction.
int gapBeforeText(QLabel* label)
{
    const QRect text = label->contentsRect();
    const QImage image = imageOf(label).copy(text);
    const bool mirrored = label->layoutDirection() == Qt::RightToLeft;
    const QRgb background = image.pixel(mirrored ? image.width() - 1 : 0, 0);
    for (int gap = 0; gap < image.width(); ++gap) {
        const int x = mirrored ? image.width() - 1 - gap : gap;
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != background)
                return gap;
        }
    }
    return image.width();
}

/// A text of the gallery's own that is not centred.
bool beginsAtStart(const QLabel& label)
{
    return label.isVisible() && !label.text().isEmpty() && !(label.alignment() & Qt::AlignHCenter)
        && !qobject_cast<const ClickableLabel*>(&label)
        && label.parentWidget()->objectName() != QLatin1String("breadcrumb");
}

} // namespace

/// Where the gallery's pages and tools lie on small screens, in either direction.
class tst_GalleryLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everyPageFits_data();
    void everyPageFits();
    void everyControlCanBeTapped_data();
    void everyControlCanBeTapped();
    void toolLiesBelowOnTallScreen();
    void textsBeginAtStart_data();
    void textsBeginAtStart();
    void switchesLieBesideTheirTexts_data();
    void switchesLieBesideTheirTexts();
    void readsFromLeftToRight();
};

void tst_GalleryLayout::initTestCase()
{
    test::prepareGallery();
}

void tst_GalleryLayout::cleanup()
{
    Appearance().applyToApplication();
    qDeleteAll(qApp->findChildren<QTranslator*>());
}

void tst_GalleryLayout::everyPageFits_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QLocale>("locale");
    const QVector<PageEntry> pages = allPages();
    const QLocale german(QLocale::German, QLocale::Germany);
    for (const PageEntry& entry : pages) {
        // The first one is what a window manager's frame leaves of the screen.
        for (const QSize& size : {QSize(792, 448), QSize(480, 800)}) {
            for (const QLocale& locale : {QLocale::c(), german})
                QTest::addRow("%s, %d x %d, %s", qPrintable(entry.id), size.width(), size.height(),
                              qPrintable(locale.name()))
                    << entry.id << size << locale;
        }
    }
}

void tst_GalleryLayout::everyPageFits()
{
    QFETCH(QString, id);
    QFETCH(QSize, size);
    QFETCH(QLocale, locale);
    installTranslations(locale);
    ShownGallery gallery(id, size);
    QCOMPARE(gallery.window.size(), size);
    for (const QScrollArea* area : gallery.window.findChildren<QScrollArea*>()) {
        if (area->isVisible() && area->objectName() != QLatin1String("panorama")
            && area->widgetResizable())
            QVERIFY2(area->horizontalScrollBar()->maximum() == 0,
                     qPrintable(QString::number(area->horizontalScrollBar()->maximum())));
    }
}

void tst_GalleryLayout::everyControlCanBeTapped_data()
{
    test::addPages();
}

void tst_GalleryLayout::everyControlCanBeTapped()
{
    QFETCH(QString, id);
    constexpr int least = 40;
    const bool showsOffSwitches = id == QLatin1String("switch") || id == QLatin1String("overview");
    ShownGallery gallery(id, QSize(800, 1400));
    const auto isTapped = [](const QWidget* widget) {
        return qobject_cast<const QAbstractButton*>(widget)
            || qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLineEdit*>(widget)
            || (qobject_cast<const QAbstractSlider*>(widget)
                && !qobject_cast<const QScrollBar*>(widget))
            || qobject_cast<const ClickableLabel*>(widget);
    };
    int tapped = 0;
    for (const QWidget* widget : gallery.window.findChildren<QWidget*>()) {
        // The switches that are shown off are as high as the library makes them.
        if (!widget->isVisible() || !isTapped(widget)
            || (widget->inherits("Switch") && showsOffSwitches
                && gallery.window.page()->isAncestorOf(widget)))
            continue;
        ++tapped;
        QVERIFY2(widget->height() >= least && (widget->width() >= least),
                 qPrintable(QStringLiteral("%1 \"%2\": %3 x %4")
                                .arg(QString::fromLatin1(widget->metaObject()->className()),
                                     widget->objectName())
                                .arg(widget->width())
                                .arg(widget->height())));
    }
    QVERIFY(tapped > 0);
}

void tst_GalleryLayout::toolLiesBelowOnTallScreen()
{
    ShownGallery gallery("battery", QSize(480, 800));
    const QWidget* tool = gallery.properties();
    QVERIFY(tool->mapTo(&gallery.window, QPoint()).y() > 400);
    QCOMPARE(tool->width() > 400, true);
    QVERIFY(!gallery.window.findChild<QListWidget*>()->isVisible());
    auto* choice = gallery.window.findChild<QComboBox*>(QStringLiteral("pageChoice"));
    QVERIFY(choice->isVisible());
    QCOMPARE(choice->currentText(), QStringLiteral("Battery"));

    choice->setFocus();
    QTest::keyClick(choice, Qt::Key_Down);
    QCOMPARE(gallery.window.page()->objectName(), QStringLiteral("scroll-indicator"));

    gallery.stage.resize(800, 480);
    gallery.window.resize(800, 480);
    QVERIFY(gallery.window.findChild<QListWidget*>()->isVisible());
    QTRY_VERIFY(gallery.properties()->mapTo(&gallery.window, QPoint()).x() > 400);
}

void tst_GalleryLayout::textsBeginAtStart_data()
{
    test::addPages();
}

/// In a mirrored layout at the right, although the texts are of a language written to the right.
void tst_GalleryLayout::textsBeginAtStart()
{
    QFETCH(QString, id);
    ShownGallery gallery(id, QSize(800, 1400));
    for (const bool mirrored : {false, true}) {
        gallery.window.findChild<Switch*>(QStringLiteral("rightToLeftSwitch"))
            ->setChecked(mirrored);
        QTRY_COMPARE(gallery.window.layoutDirection(),
                     mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        int labels = 0;
        for (QLabel* label : gallery.window.findChildren<QLabel*>()) {
            if (!beginsAtStart(*label))
                continue;
            ++labels;
            QVERIFY2(gapBeforeText(label) < 8, qPrintable(label->text()));
        }
        QVERIFY(labels > 0);
    }
}

void tst_GalleryLayout::switchesLieBesideTheirTexts_data()
{
    test::addPages();
}

/// A mirrored switch paints its text at the far end of its width.
void tst_GalleryLayout::switchesLieBesideTheirTexts()
{
    QFETCH(QString, id);
    ShownGallery gallery(id);
    for (const Switch* control : gallery.window.findChildren<Switch*>()) {
        if (control->isVisible() && !control->text().isEmpty())
            QVERIFY2(control->width() <= control->sizeHint().width(), qPrintable(control->text()));
    }
}

void tst_GalleryLayout::readsFromLeftToRight()
{
    QLabel label(QStringLiteral("#12 %"));
    label.setAlignment(Qt::AlignCenter);
    label.resize(120, 40);
    QToolButton button;
    button.setText(QStringLiteral("#12 %"));
    button.resize(120, 40);
    for (QWidget* widget : std::initializer_list<QWidget*>{&label, &button}) {
        const QImage leftToRight = imageOf(widget);
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(imageOf(widget), leftToRight);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
}

const test::Registration<tst_GalleryLayout> registration;

#include "tst_GalleryLayout.moc"
