#include "Contrast.h"
#include "PlatformMessages.h"
#include "Samples.h"
#include "TestApplication.h"

#include <Switch.h>
#include <ui/CRoundedFrame.h>
#include <ui/FileBrowserWidget.h>
#include <ui/LineEdit.h>
#include <ui/ScrollIndicatorBar.h>

#include <QBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScroller>

namespace {

constexpr double readableText = 4.5;
constexpr double visibleIcon = 3.0;

/// In the middle of the thumb of a switch of the default size.
QColor thumbColor(Switch* control)
{
    const QRect indicator = control->indicatorRect();
    const int inset = 17;
    const int x = control->isChecked() ? indicator.right() - inset : indicator.left() + inset;
    return control->grab().toImage().pixelColor(x, indicator.center().y());
}

double contrastOf(QWidget* widget)
{
    const QImage picture = widget->window()->grab().toImage();
    const QRect rect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
    return test::contrastIn(picture, rect.intersected(picture.rect()).adjusted(2, 2, -2, -2));
}

} // namespace

/// The recipes of the reference do what its guides say.
class tst_Recipes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void switchInStyleSheet();
    void switchInNewStyleSheet();
    void darkTheme();
    void validatedText();
    void indicatorLightsUpWhileDragged();
    void onlyFilesCanBeOpened();
};

void tst_Recipes::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_Recipes::switchInStyleSheet()
{
    QWidget window;
    samples::styledSwitch(&window);
    auto* control = window.findChild<Switch*>();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(control->isChecked());
    QCOMPARE(thumbColor(control), QColor("#0b6e99"));
}

void tst_Recipes::switchInNewStyleSheet()
{
    QWidget window;
    samples::styledSwitch(&window);
    auto* control = window.findChild<Switch*>();
    int reports = 0;
    connect(control, &Switch::stateChanged, this, [&reports] { ++reports; });
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    samples::changeStyleSheet(&window, "Switch { qproperty-thumbOnBrush: #a3160c; }");
    QTRY_COMPARE(thumbColor(control), QColor("#a3160c"));
    QCOMPARE(reports, 0);
}

void tst_Recipes::darkTheme()
{
    const QPalette palette = QApplication::palette();
    const auto restore = qScopeGuard([&palette] {
        qApp->setStyleSheet(QString());
        QApplication::setPalette(palette);
    });
    samples::darkTheme();

    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* label = new QLabel("Label");
    auto* field = new ui::LineEdit;
    field->setText("Text");
    auto* button = new QPushButton("Button");
    auto* frame = new ui::CRoundedFrame;
    frame->setMinimumSize(60, 60);
    auto* indicator = new ui::widgets::ScrollIndicatorBar(Qt::Horizontal);
    indicator->setRange(0, 0); // the handle takes the whole length
    auto* on = new Switch("On");
    on->ensurePolished();
    on->setChecked(true);
    auto* off = new Switch("Off");
    auto* browser = new ui::FileBrowserWidget;
    for (QWidget* widget :
         std::initializer_list<QWidget*>{label, field, button, frame, indicator, on, off, browser})
        column->addWidget(widget);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QVERIFY(window.palette().color(QPalette::Window).lightness() < 60);
    for (QWidget* text : std::initializer_list<QWidget*>{label, field, button})
        QVERIFY2(contrastOf(text) >= readableText, text->metaObject()->className());
    const QColor ground = window.palette().color(QPalette::Window);
    for (Switch* control : {on, off}) {
        QVERIFY(test::contrast(thumbColor(control), ground) >= visibleIcon);
        QCOMPARE(control->palette().color(QPalette::ButtonText), QColor(Qt::white));
    }
    QVERIFY(test::contrast(frame->palette().color(QPalette::WindowText), ground) >= visibleIcon);

    const QImage bar = indicator->grab().toImage();
    for (int line = 0; line < bar.height(); ++line)
        QVERIFY(test::contrast(bar.pixelColor(bar.width() / 2, line), ground) >= visibleIcon);

    const auto icons = browser->findChildren<QPushButton*>("toolbarButton");
    QCOMPARE(icons.size(), 2);
    for (QPushButton* icon : icons)
        QVERIFY(contrastOf(icon) >= visibleIcon);
}

void tst_Recipes::validatedText()
{
    ui::LineEdit field;
    field.setValidator(new QIntValidator(1, 99, &field));
    samples::setTextAndValidate(&field, "0");
    QCOMPARE(field.text(), QString("0"));
    QCOMPARE(field.property("inputValid"), QVariant(false));
    samples::setTextAndValidate(&field, "7");
    QCOMPARE(field.property("inputValid"), QVariant(true));
}

void tst_Recipes::indicatorLightsUpWhileDragged()
{
    QWidget window;
    samples::scrollIndicator(&window);
    auto* area = window.findChild<QScrollArea*>();
    area->resize(200, 200);
    auto* content = new QWidget;
    content->setFixedSize(100, 1000);
    area->setWidget(content);
    window.resize(200, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* indicator = window.findChild<ui::widgets::ScrollIndicatorBar*>();
    const auto isLit = [indicator] {
        return indicator->grab().toImage().pixelColor(0, 5)
            == indicator->palette().color(QPalette::Highlight);
    };

    QScroller* scroller = QScroller::scroller(area->viewport());
    scroller->handleInput(QScroller::InputPress, QPointF(50, 150), 0);
    QCOMPARE(scroller->state(), QScroller::Pressed);
    QVERIFY(!isLit());
    scroller->handleInput(QScroller::InputMove, QPointF(50, 100), 100);
    QCOMPARE(scroller->state(), QScroller::Dragging);
    QVERIFY(isLit());
    scroller->stop();
    QVERIFY(!isLit());
}

void tst_Recipes::onlyFilesCanBeOpened()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("inner"));
    QFile file(folder.filePath("a.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));

    QWidget window;
    samples::fileBrowser(&window);
    auto* browser = window.findChild<ui::FileBrowserWidget*>();
    QPushButton* open = nullptr;
    for (auto* button : window.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly))
        open = button;
    QVERIFY(open);
    browser->setAllowedDirs({folder.path()});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* tiles = browser->findChild<QListView*>();
    QTRY_COMPARE(tiles->model()->rowCount(tiles->rootIndex()), 2);
    const auto entry = [tiles](const char* name) {
        return tiles->model()
            ->match(tiles->model()->index(0, 0, tiles->rootIndex()), Qt::DisplayRole, name)
            .value(0);
    };

    QVERIFY(!open->isEnabled());
    tiles->setCurrentIndex(entry("a.txt"));
    QVERIFY(open->isEnabled());
    tiles->setCurrentIndex(entry("inner"));
    QVERIFY(!browser->selectedFiles().isEmpty());
    QVERIFY(!open->isEnabled());
}

const test::Registration<tst_Recipes> registration;

#include "tst_Recipes.moc"
