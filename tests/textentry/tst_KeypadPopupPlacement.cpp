#include "Desktop.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <ui/keyboard/IKeypad.h>
#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

using test::Desktop;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace {

constexpr int fieldWidth = 120;
constexpr int fieldHeight = 30;

/// A pop-up of a size hint of the test's choice.
class SizedPopup : public KeypadPopup
{
public:
    SizedPopup(QWidget* parent, const QSize& size)
        : KeypadPopup(parent, QString(), KeyboardType::Integer, -1)
        , hint(size)
    {
    }
    QSize sizeHint() const override
    {
        return hint;
    }

    QSize hint;
};

} // namespace

/// Where the pop-up goes, to the pixel.
class tst_KeypadPopupPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void place_data();
    void place();
    void nestedField();
    void measuresAfresh();
    void sectionChangePlacesAtOnce();
    void sectionChangeResizesAVisiblePopup();
    void sectionChangeLeavesAGivenSize_data();
    void sectionChangeLeavesAGivenSize();
    void sectionChangeBeforeTheFirstShowing();
    void sizeFollowsTheHintAtTheNextShowing();
};

void tst_KeypadPopupPlacement::place_data()
{
    QTest::addColumn<QVector<QRect>>("screens");
    QTest::addColumn<QPoint>("field"); // its top left corner
    QTest::addColumn<QSize>("popup");
    QTest::addColumn<QPoint>("expected");

    const QSize popup(200, 150);
    const QVector<QVector<QRect>> desktops{
        {QRect(0, 0, 800, 480)},
        {QRect(0, 0, 480, 800)},
        {QRect(0, 0, 1280, 800)},
        {QRect(0, 0, 800, 480), QRect(-800, -480, 800, 480)},
        {QRect(0, 0, 480, 480), QRect(480, 0, 320, 600), QRect(0, 480, 200, 200)},
        {QRect(800, 480, 800, 480)}};
    for (const QVector<QRect>& screens : desktops) {
        QRect desktop;
        for (const QRect& screen : screens)
            desktop |= screen;
        const int width = desktop.width();
        const int height = desktop.height();
        const auto row = [&](const char* what, const QPoint& field, const QPoint& expected) {
            QTest::addRow("%s, %dx%d+%d+%d, screens: %d", what, width, height, desktop.x(),
                          desktop.y(), int(screens.size()))
                << screens << field << popup << expected;
        };
        row("below", {40, 50}, {40, 80});
        // Bottom edge: the pop-up's bottom at height, one pixel below, the field at the very
        // bottom.
        const int lastBelow = height - popup.height() - fieldHeight;
        row("fits below exactly", {40, lastBelow}, {40, height - popup.height()});
        row("one too low", {40, lastBelow + 1}, {40, lastBelow + 1 - popup.height()});
        row("field at the bottom", {40, height - fieldHeight},
            {40, height - fieldHeight - popup.height()});
        row("field below the screen", {40, height + 5}, {40, height + 5 - popup.height()});
        // Right edge: 11, 10, 9 and no pixels left.
        const int last = width - 10 - popup.width();
        row("11 pixels right", {last - 1, 50}, {last - 1, 80});
        row("10 pixels right", {last, 50}, {last, 80});
        row("9 pixels right", {last + 1, 50}, {last, 80});
        row("8 pixels right", {last + 2, 50}, {last, 80});
        row("field at the right edge", {width - fieldWidth, 50}, {last, 80});
        row("field right of the screen", {width + 300, 50}, {last, 80});
        // Both; and no pulling back at the left and the top.
        row("corner", {width - fieldWidth, height - fieldHeight},
            {last, height - fieldHeight - popup.height()});
        row("field at the left edge", {0, 0}, {0, 30});
        row("field left of the screen", {-100, 50}, {-100, 80});
        row("field above the screen", {40, -100}, {40, -70});
    }
    QTest::newRow("higher than the screen")
        << QVector<QRect>{QRect(0, 0, 800, 480)} << QPoint(40, 100) << QSize(200, 500)
        << QPoint(40, -400);
    QTest::newRow("wider than the screen")
        << QVector<QRect>{QRect(0, 0, 800, 480)} << QPoint(40, 100) << QSize(900, 100)
        << QPoint(-110, 130);
}

void tst_KeypadPopupPlacement::place()
{
    QFETCH(QVector<QRect>, screens);
    QFETCH(QPoint, field);
    QFETCH(QSize, popup);
    QFETCH(QPoint, expected);
    const Desktop desktop(screens);
    ui::LineEdit edit;
    edit.setGeometry(QRect(field, QSize(fieldWidth, fieldHeight)));
    SizedPopup sized(&edit, popup);

    sized.locatePopup();
    QCOMPARE(sized.pos(), expected);
}

void tst_KeypadPopupPlacement::nestedField()
{
    QWidget form;
    form.setGeometry(100, 50, 400, 300);
    QWidget group(&form);
    group.setGeometry(20, 30, 300, 200);
    ui::LineEdit edit(&group);
    edit.setGeometry(7, 9, fieldWidth, fieldHeight);
    SizedPopup popup(&edit, QSize(50, 60));

    popup.locatePopup();
    QCOMPARE(popup.pos(), QPoint(100 + 20 + 7, 50 + 30 + 9 + fieldHeight));
}

void tst_KeypadPopupPlacement::measuresAfresh()
{
    const Desktop desktop({QRect(0, 0, 800, 480)});
    ui::LineEdit edit;
    edit.setGeometry(700, 400, fieldWidth, fieldHeight);
    SizedPopup popup(&edit, QSize(100, 50));
    popup.locatePopup();
    QCOMPARE(popup.pos(), QPoint(690, 430));
    popup.hint = QSize(200, 60);
    popup.locatePopup();
    QCOMPARE(popup.pos(), QPoint(590, 340));
    edit.move(10, 10);
    popup.locatePopup();
    QCOMPARE(popup.pos(), QPoint(10, 40));
}

void tst_KeypadPopupPlacement::sectionChangePlacesAtOnce()
{
    const Desktop desktop({QRect(0, 0, 800, 480)});
    ui::LineEdit edit;
    edit.setGeometry(10, 400, fieldWidth, fieldHeight);
    KeypadPopup popup(&edit, QString(), KeyboardType::Text, -1);
    popup.setKeypadSectionVisible(1, true);
    const int tall = popup.sizeHint().height();
    QCOMPARE(popup.pos(), QPoint(10, 400 - tall));

    popup.setKeypadSectionVisible(1, false);
    const int low = popup.sizeHint().height();
    QVERIFY(low < tall);
    QCOMPARE(popup.pos(), QPoint(10, 400 - low));
    QCoreApplication::processEvents(); // the layouts have nothing left to say
    QCOMPARE(popup.sizeHint().height(), low);
}

void tst_KeypadPopupPlacement::sectionChangeResizesAVisiblePopup()
{
    const Desktop desktop({QRect(0, 0, 800, 480)});
    ui::LineEdit edit;
    edit.setGeometry(10, 400, fieldWidth, fieldHeight);
    KeypadPopup popup(&edit, QString(), KeyboardType::Text, -1);
    popup.locatePopup();
    popup.show();
    const QSize letters = popup.size();
    QCOMPARE(letters, popup.sizeHint());

    for (const bool visible : {true, false}) {
        popup.setKeypadSectionVisible(1, visible);
        QCOMPARE(popup.size(), popup.sizeHint());
        QCOMPARE(popup.y() + popup.height(), 400);
        QCOMPARE(popup.height() > letters.height(), visible);
    }
    QCOMPARE(popup.size(), letters);
    const auto* keypad = popup.findChild<ui::keyboard::IKeypad*>();
    QCOMPARE(keypad->size(), keypad->sizeHint());
}

void tst_KeypadPopupPlacement::sectionChangeLeavesAGivenSize_data()
{
    QTest::addColumn<bool>("givenBefore");
    QTest::newRow("before it is shown") << true;
    QTest::newRow("while it is visible") << false;
}

/// The place follows the new size hint all the same.
void tst_KeypadPopupPlacement::sectionChangeLeavesAGivenSize()
{
    QFETCH(bool, givenBefore);
    const Desktop desktop({QRect(0, 0, 800, 480)});
    ui::LineEdit edit;
    edit.setGeometry(10, 400, fieldWidth, fieldHeight);
    KeypadPopup popup(&edit, QString(), KeyboardType::Text, -1);
    const QSize given = popup.sizeHint() + QSize(150, 250);
    if (givenBefore)
        popup.resize(given);
    popup.show();
    popup.resize(given);

    for (const bool visible : {true, false}) {
        popup.setKeypadSectionVisible(1, visible);
        QCOMPARE(popup.size(), given);
        QCOMPARE(popup.y() + popup.sizeHint().height(), 400);
    }
    popup.hide();
    popup.show();
    QCOMPARE(popup.size(), given);
}

void tst_KeypadPopupPlacement::sectionChangeBeforeTheFirstShowing()
{
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QString(), KeyboardType::Text, -1);
    popup.setKeypadSectionVisible(1, true);
    popup.setKeypadSectionVisible(0, false);
    const QSize hint = popup.sizeHint();
    popup.show();
    QCOMPARE(popup.size(), hint);
}

void tst_KeypadPopupPlacement::sizeFollowsTheHintAtTheNextShowing()
{
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QString(), KeyboardType::Text, -1);
    popup.show();
    popup.setKeypadSectionVisible(1, true);
    popup.hide();
    popup.setKeypadSectionVisible(1, false);
    popup.show();
    QCOMPARE(popup.size(), popup.sizeHint());
}

const test::Registration<tst_KeypadPopupPlacement> registration;

#include "tst_KeypadPopupPlacement.moc"
