#include "Appearance.h"
#include "Contrast.h"
#include "GalleryPage.h"
#include "IconLabel.h"
#include "OffscreenMessages.h"
#include "pages/Pages.h"
#include "PageView.h"
#include "Rendering.h"
#include "TestApplication.h"
#include "TouchStyle.h"

#include <Switch.h>
#include <ui/ScrollIndicatorBar.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using ui::widgets::ScrollIndicatorBar;

namespace {

constexpr double leastForText = 4.5;
constexpr double leastForIcons = 3.0;

/// Where the text of a button or the like is, without its outline, which may stand out more.
QRect middleOf(const QWidget& widget, const QString& text)
{
    const QSize size(widget.fontMetrics().horizontalAdvance(text), widget.fontMetrics().height());
    QRect rect(QPoint(), size.boundedTo(widget.size() - QSize(8, 8)));
    rect.moveCenter(widget.rect().center());
    return rect;
}

/// The part of \a widget that shows text; null if it shows none.
QRect textRect(const QWidget& widget)
{
    if (const auto* control = qobject_cast<const Switch*>(&widget))
        return control->text().isEmpty() ? QRect() : control->textRect();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().isEmpty() ? QRect() : label->contentsRect();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty() ? QRect() : middleOf(widget, button->text());
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return field->text().isEmpty() ? QRect() : widget.rect().adjusted(4, 4, -4, -4);
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return box->currentText().isEmpty() ? QRect() : widget.rect().adjusted(6, 6, -40, -6);
    return {};
}

bool showsIcon(const QWidget& widget)
{
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    return qobject_cast<const IconLabel*>(&widget) || (button && !button->icon().isNull());
}

/// What is hidden by a scrolled area cannot be measured.
QRect visiblePart(const QWidget& widget, const QRect& rect, const QWidget& root)
{
    const QRect visible = rect & widget.visibleRegion().boundingRect();
    return visible == rect ? QRect(widget.mapTo(&root, rect.topLeft()), rect.size()) : QRect();
}

QString nameOf(const QWidget& widget)
{
    const QString text = widget.property("text").toString();
    return QStringLiteral("%1 \"%2\" %3")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName(), text);
}

/// A page as its screenshot shows it.
struct Shot
{
    Shot(const PageEntry& entry, bool dark)
    {
        Appearance appearance;
        appearance.dark = dark;
        appearance.applyToApplication();
        view = new PageView(entry, &window);
        view->ensurePolished();
        view->resize(view->pictureSize());
        window.resize(view->size());
        rendering::showUnseen(&window);
        const GalleryPage* page = view->page();
        isReady = rendering::waitUntil([page] { return page->isReady(); });
        picture = rendering::pictureOf(&window, 1.0);
    }

    QWidget window;
    PageView* view = nullptr;
    QImage picture;
    bool isReady = false;
};

} // namespace

/// Whether what the pages show can be read, measured from their pictures.
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void texts_data();
    void texts();
    void icons_data();
    void icons();
    void idleIndicators_data();
    void idleIndicators();
};

namespace {

void addPages()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("dark");
    const QVector<PageEntry> pages = allPages();
    for (int page = 0; page < pages.size(); ++page) {
        for (const bool dark : {false, true})
            QTest::addRow("%s, %s", qPrintable(pages.at(page).id), dark ? "dark" : "light")
                << page << dark;
    }
}

} // namespace

void tst_Contrast::initTestCase()
{
    test::dropOffscreenMessages();
    TouchStyle::install();
    QFont font = QApplication::font();
    font.setPointSize(9); // as the gallery finds it, which makes larger ones of it
    QApplication::setFont(font);
}

void tst_Contrast::cleanupTestCase()
{
    Appearance().applyToApplication();
}

void tst_Contrast::texts_data()
{
    addPages();
}

void tst_Contrast::texts()
{
    QFETCH(int, page);
    QFETCH(bool, dark);
    const Shot shot(allPages().at(page), dark);
    QVERIFY(shot.isReady);
    int measured = 0;
    for (const QWidget* widget : shot.view->findChildren<QWidget*>()) {
        const QRect rect = widget->isEnabled() && widget->isVisible()
            ? visiblePart(*widget, textRect(*widget), shot.window)
            : QRect();
        if (rect.isEmpty())
            continue;
        ++measured;
        const double contrast = test::contrastIn(shot.picture, rect);
        QVERIFY2(contrast >= leastForText,
                 qPrintable(QStringLiteral("%1: %2").arg(nameOf(*widget)).arg(contrast)));
    }
    QVERIFY(measured > 1);
}

void tst_Contrast::icons_data()
{
    addPages();
}

void tst_Contrast::icons()
{
    QFETCH(int, page);
    QFETCH(bool, dark);
    const Shot shot(allPages().at(page), dark);
    for (const QWidget* widget : shot.view->findChildren<QWidget*>()) {
        if (!widget->isVisible() || !showsIcon(*widget))
            continue;
        const QRect inner = widget->rect().adjusted(6, 6, -6, -6);
        const QRect rect(widget->mapTo(&shot.window, inner.topLeft()), inner.size());
        const double contrast = test::contrastIn(shot.picture, rect);
        QVERIFY2(contrast >= leastForIcons,
                 qPrintable(QStringLiteral("%1: %2").arg(nameOf(*widget)).arg(contrast)));
    }
}

void tst_Contrast::idleIndicators_data()
{
    addPages();
}

/// Against the window that an indicator lies on: its groove is a shade of the same colour.
void tst_Contrast::idleIndicators()
{
    QFETCH(int, page);
    QFETCH(bool, dark);
    const Shot shot(allPages().at(page), dark);
    const QColor window = QApplication::palette().color(QPalette::Window);
    for (const auto* bar : shot.view->findChildren<ScrollIndicatorBar*>()) {
        if (!bar->isVisible() || bar->minimum() == bar->maximum())
            continue;
        const QRect rect(bar->mapTo(&shot.window, QPoint()), bar->size());
        double contrast = 0.0;
        for (int x = rect.left(); x <= rect.right(); ++x) {
            for (int y = rect.top(); y <= rect.bottom(); ++y)
                contrast = qMax(contrast, test::contrast(shot.picture.pixelColor(x, y), window));
        }
        QVERIFY2(contrast >= leastForIcons, qPrintable(QString::number(contrast)));
    }
}

const test::Registration<tst_Contrast> registration;

#include "tst_Contrast.moc"
