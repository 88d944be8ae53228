#include "Contrast.h"
#include "KeypadKeys.h"
#include "Palettes.h"
#include "PlatformMessages.h"
#include "PrivateFields.h"
#include "TestApplication.h"

#include <ui/keyboard/IKeypad.h>
#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QValidator>

#include <limits>

using ui::KeypadPopup;
using ui::keyboard::IKeypad;
using ui::keyboard::KeyboardType;

namespace test {

struct PopupFields
{
    friend auto fieldsOf(PopupFields);
};
template struct PrivateFields<PopupFields, &KeypadPopup::buttonPressed>;

} // namespace test

namespace {

const QColor base(235, 235, 235);

/// The pop-up's one frame, which is no label.
QFrame* frameOf(const QWidget& popup)
{
    return qobject_cast<QFrame*>(popup.layout()->itemAt(0)->widget());
}

QLabel* labelOf(const QWidget& popup)
{
    return popup.findChild<QLabel*>();
}

} // namespace

/// What the pop-up is made of, and how its keypad's OK and Cancel and key presses travel.
class tst_KeypadPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void interface();
    void construction();
    void frame_data();
    void frame();
    void subtitle();
    void subtitleCanBeRead_data();
    void subtitleCanBeRead();
    void order();
    void picture();
    void title_data();
    void title();
    void lastArgumentIsIgnored();

    void okAndCancel();
    void buttonsAreNoted_data();
    void buttonsAreNoted();
    void staysOpenOnOkAndCancel();
    void resultReachesTheKeypad();
    void parentWithoutValidation();
    void keyPressesAreForwarded_data();
    void keyPressesAreForwarded();
    void keypadTypesIntoTheField();

    void withoutKeypad();
};

void tst_KeypadPopup::interface()
{
    const QMetaObject& meta = KeypadPopup::staticMetaObject;
    QCOMPARE(meta.className(), "ui::KeypadPopup");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(signatures,
             (QStringList{"signalOk()", "signalCancel()", "slotOkButton()", "slotCancelButton()"}));
    QCOMPARE(meta.method(meta.indexOfSlot("slotOkButton()")).access(), QMetaMethod::Protected);
}

void tst_KeypadPopup::construction()
{
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QStringLiteral("Title"), KeyboardType::Decimal, -1);
    QCOMPARE(popup.parent(), &edit);
    QCOMPARE(popup.windowType(), Qt::Popup);
    QVERIFY(popup.isWindow());
    QVERIFY(!popup.isVisible());
    QCOMPARE(popup.focusPolicy(), Qt::NoFocus);
    QVERIFY(popup.autoFillBackground());

    const auto keypads = popup.findChildren<IKeypad*>();
    QCOMPARE(keypads.size(), 1);
    QVERIFY(test::shownKeys(*keypads.first()).contains(QStringLiteral("Decimal separator")));
    QCOMPARE(popup.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(popup.layout()->count(), 1);
    QVERIFY(qobject_cast<QVBoxLayout*>(popup.layout()));
}

void tst_KeypadPopup::frame_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << test::lightPalette();
    QTest::newRow("dark") << test::darkPalette();
    QTest::newRow("telltale") << test::telltalePalette();
}

void tst_KeypadPopup::frame()
{
    QFETCH(QPalette, palette);
    // A window takes after the application, not after its parent.
    QApplication::setPalette(palette);
    const auto restore = qScopeGuard([] { QApplication::setPalette(test::lightPalette()); });
    ui::LineEdit edit;
    const KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    const QFrame* frame = frameOf(popup);
    QVERIFY(frame);
    QCOMPARE(frame->parentWidget(), &popup);
    QCOMPARE(frame->frameShape(), QFrame::Box);
    QCOMPARE(frame->frameShadow(), QFrame::Raised);
    QCOMPARE(frame->lineWidth(), 1);
    QCOMPARE(frame->midLineWidth(), 2);
    QCOMPARE(frame->focusPolicy(), Qt::NoFocus);
    QCOMPARE(frame->sizePolicy(),
             QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding));
    QVERIFY(frame->autoFillBackground());
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(frame->palette().color(group, frame->backgroundRole()), base);
        QCOMPARE(frame->palette().color(group, QPalette::Light), base.lighter(110));
        QCOMPARE(frame->palette().color(group, QPalette::Mid), base.darker(125));
        QCOMPARE(frame->palette().color(group, QPalette::Dark), base.darker(160));
    }
}

void tst_KeypadPopup::subtitle()
{
    ui::LineEdit edit;
    const KeypadPopup popup(&edit, QStringLiteral("Title"), KeyboardType::Integer, -1);
    QCOMPARE(popup.findChildren<QLabel*>().size(), 1);
    const QLabel* label = labelOf(popup);
    QCOMPARE(label->parentWidget(), frameOf(popup));
    QCOMPARE(label->text(), QStringLiteral("Title"));
    QCOMPARE(label->minimumHeight(), 20);
    QCOMPARE(label->maximumHeight(), 20);
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QCOMPARE(label->sizePolicy(), QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed));
    QVERIFY(label->autoFillBackground());
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(label->palette().color(group, label->backgroundRole()), base.darker(115));
}

void tst_KeypadPopup::subtitleCanBeRead_data()
{
    QTest::addColumn<QPalette>("before");
    QTest::addColumn<QPalette>("after");
    QTest::newRow("light") << test::lightPalette() << test::lightPalette();
    QTest::newRow("dark") << test::darkPalette() << test::darkPalette();
    QTest::newRow("turned dark") << test::lightPalette() << test::darkPalette();
}

void tst_KeypadPopup::subtitleCanBeRead()
{
    QFETCH(QPalette, before);
    QFETCH(QPalette, after);
    const QPalette own = QApplication::palette();
    const auto restore = qScopeGuard([&own] { QApplication::setPalette(own); });
    QApplication::setPalette(before);
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QStringLiteral("MMM"), KeyboardType::Integer, -1);
    QApplication::setPalette(after);

    const QImage image = labelOf(popup)->grab().toImage();
    QVERIFY(test::contrastIn(image, image.rect()) >= 4.5);
}

void tst_KeypadPopup::order()
{
    ui::LineEdit edit;
    const KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    QLayout* layout = frameOf(popup)->layout();
    QVERIFY(qobject_cast<QVBoxLayout*>(layout));
    QCOMPARE(layout->contentsMargins(), QMargins(5, 5, 5, 5));
    QCOMPARE(layout->spacing(), 5);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), labelOf(popup));
    QVERIFY(qobject_cast<IKeypad*>(layout->itemAt(1)->widget()));

    // The order in which the parts were made, and in which they are painted.
    QCOMPARE(popup.children(), (QObjectList{popup.layout(), frameOf(popup)}));
    QCOMPARE(frameOf(popup)->children(),
             (QObjectList{layout, labelOf(popup), layout->itemAt(1)->widget()}));
}

void tst_KeypadPopup::picture()
{
    ui::LineEdit edit;
    edit.setPalette(test::darkPalette());
    KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    popup.resize(popup.sizeHint());
    const QImage image = popup.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const int middle = popup.width() / 2;
    // From the top: a light line, two of the middle colour, a dark one, the margin, the subtitle.
    QCOMPARE(image.pixel(middle, 0), base.lighter(110).rgb());
    QCOMPARE(image.pixel(middle, 1), base.darker(125).rgb());
    QCOMPARE(image.pixel(middle, 2), base.darker(125).rgb());
    QCOMPARE(image.pixel(middle, 3), base.darker(160).rgb());
    for (int y = 4; y < 9; ++y)
        QCOMPARE(image.pixel(middle, y), base.rgb());
    for (int y = 9; y < 29; ++y)
        QCOMPARE(image.pixel(middle, y), base.darker(115).rgb());
    for (int y = 29; y < 34; ++y)
        QCOMPARE(image.pixel(middle, y), base.rgb());
    QCOMPARE(frameOf(popup)->geometry(), popup.rect());
}

void tst_KeypadPopup::title_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "Port";
    QTest::newRow("empty") << "";
    QTest::newRow("markup") << "<b>a</b> & <img src='/dev/null'> <br/> <table>";
    QTest::newRow("lines") << "one\ntwo\nthree";
    QTest::newRow("very long") << QString(10000, QLatin1Char('m'));
}

void tst_KeypadPopup::title()
{
    QFETCH(QString, text);
    ui::LineEdit edit;
    KeypadPopup popup(&edit, text, KeyboardType::Integer, -1);
    const QLabel* label = labelOf(popup);
    QCOMPARE(label->text(), text);
    popup.setSubtitleLabel(QStringLiteral("other"));
    QCOMPARE(label->text(), QStringLiteral("other"));
    popup.setSubtitleLabel(text);
    QCOMPARE(label->text(), text);
    QCOMPARE(label->textFormat(), QLabel().textFormat());
    const KeypadPopup reference(&edit, QString(), KeyboardType::Integer, -1);
    QCOMPARE(popup.sizeHint().height(), reference.sizeHint().height());
    popup.locatePopup();
}

void tst_KeypadPopup::lastArgumentIsIgnored()
{
    ui::LineEdit edit;
    const KeypadPopup reference(&edit, QString(), KeyboardType::Integer, -1);
    for (const int number :
         {0, 1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        const KeypadPopup popup(&edit, QString(), KeyboardType::Integer, number);
        QCOMPARE(popup.sizeHint(), reference.sizeHint());
    }
}

void tst_KeypadPopup::okAndCancel()
{
    ui::LineEdit edit;
    const KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    const QSignalSpy ok(&popup, &KeypadPopup::signalOk);
    const QSignalSpy cancel(&popup, &KeypadPopup::signalCancel);
    test::tapKey(popup, QStringLiteral("OK"));
    QCOMPARE(ok.count(), 1);
    QCOMPARE(cancel.count(), 0);
    test::tapKey(popup, QStringLiteral("Cancel"));
    QCOMPARE(ok.count(), 1);
    QCOMPARE(cancel.count(), 1);
}

void tst_KeypadPopup::buttonsAreNoted_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("OK") << "OK";
    QTest::newRow("Cancel") << "Cancel";
}

void tst_KeypadPopup::buttonsAreNoted()
{
    QFETCH(QString, key);
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    QVERIFY(!(popup.*std::get<0>(fieldsOf(test::PopupFields()))));
    test::tapKey(popup, key); // nobody listens
    QVERIFY(popup.*std::get<0>(fieldsOf(test::PopupFields())));

    KeypadPopup second(&edit, QString(), KeyboardType::Integer, -1);
    bool notedBefore = false;
    connect(&second, &KeypadPopup::signalOk, &edit,
            [&] { notedBefore = second.*std::get<0>(fieldsOf(test::PopupFields())); });
    connect(&second, &KeypadPopup::signalCancel, &edit,
            [&] { notedBefore = second.*std::get<0>(fieldsOf(test::PopupFields())); });
    test::tapKey(second, key);
    QVERIFY(notedBefore);
}

void tst_KeypadPopup::staysOpenOnOkAndCancel()
{
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    popup.show();
    test::tapKey(popup, QStringLiteral("OK"));
    test::tapKey(popup, QStringLiteral("Cancel"));
    QCoreApplication::processEvents();
    QVERIFY(popup.isVisible());
    QVERIFY(popup.close());
    QVERIFY(!popup.isVisible());
}

void tst_KeypadPopup::resultReachesTheKeypad()
{
    ui::LineEdit edit;
    edit.setValidator(new QIntValidator(10, 99, &edit));
    const KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    const QPushButton* ok = test::keypadKey(popup, QStringLiteral("OK"));
    QVERIFY(ok->isEnabled());
    QTest::keyClicks(&edit, QStringLiteral("1"));
    QVERIFY(!ok->isEnabled());
    QTest::keyClicks(&edit, QStringLiteral("1"));
    QVERIFY(ok->isEnabled());
}

void tst_KeypadPopup::parentWithoutValidation()
{
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(QStringLiteral(
            "^QObject::connect: No such signal QLineEdit::resultValidated\\(bool\\)")));
    QLineEdit edit;
    KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    test::tapKey(popup, QStringLiteral("7"));
    QCOMPARE(edit.text(), QStringLiteral("7"));
    const QSignalSpy ok(&popup, &KeypadPopup::signalOk);
    test::tapKey(popup, QStringLiteral("OK"));
    QCOMPARE(ok.count(), 1);
}

void tst_KeypadPopup::keyPressesAreForwarded_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("letter") << int(Qt::Key_A) << "a";
    QTest::newRow("Return") << int(Qt::Key_Return) << "\r";
    QTest::newRow("Enter") << int(Qt::Key_Enter) << "\r";
    QTest::newRow("Escape") << int(Qt::Key_Escape) << "\x1b";
    QTest::newRow("Tab") << int(Qt::Key_Tab) << "\t";
    QTest::newRow("left") << int(Qt::Key_Left) << "";
    QTest::newRow("unknown to the field") << int(Qt::Key_F12) << "";
}

void tst_KeypadPopup::keyPressesAreForwarded()
{
    class Recorder : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::KeyPress)
                seen.append(event);
            return false;
        }
        QVector<QEvent*> seen;
    };

    QFETCH(int, key);
    QFETCH(QString, text);
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    popup.show();
    Recorder recorder;
    edit.installEventFilter(&recorder);

    QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier, text, true, 3);
    QCoreApplication::sendEvent(&popup, &event);
    QCOMPARE(recorder.seen, QVector<QEvent*>{&event}); // the very event
    QVERIFY(popup.isVisible());
}

void tst_KeypadPopup::keypadTypesIntoTheField()
{
    ui::LineEdit edit;
    edit.setText(QStringLiteral("1"));
    const KeypadPopup popup(&edit, QString(), KeyboardType::Decimal, -1);
    for (const char* key : {"2", "Decimal separator", "5", "0", "Backspace"})
        test::tapKey(popup, QString::fromUtf8(key));
    QCOMPARE(edit.text(), QStringLiteral("12.5"));
}

void tst_KeypadPopup::withoutKeypad()
{
    QTest::ignoreMessage(QtWarningMsg, "IKeypad::create: no keypad for the type 99");
    ui::LineEdit edit;
    edit.resize(100, 30);
    KeypadPopup popup(&edit, QStringLiteral("Title"), KeyboardType(99), -1);
    QCOMPARE(frameOf(popup)->layout()->count(), 1);
    QCOMPARE(labelOf(popup)->text(), QStringLiteral("Title"));

    popup.move(7, 8);
    popup.setKeypadSectionVisible(0, false);
    QCOMPARE(popup.pos(), QPoint(7, 8)); // nothing at all happens
    popup.locatePopup();
    QCOMPARE(popup.pos(), edit.mapToGlobal(QPoint(0, 30)));
    popup.setSubtitleLabel(QStringLiteral("Other"));
    QCOMPARE(labelOf(popup)->text(), QStringLiteral("Other"));
    popup.show();
    QTest::keyClicks(&popup, QStringLiteral("ab"));
    QCOMPARE(edit.text(), QStringLiteral("ab"));
}

const test::Registration<tst_KeypadPopup> registration;

#include "tst_KeypadPopup.moc"
