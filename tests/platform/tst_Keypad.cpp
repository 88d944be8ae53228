#include "KeypadKeys.h"
#include "KeyReceiver.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <ui/keyboard/IKeypad.h>

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

using test::KeyReceiver;
using ui::keyboard::IKeypad;
using ui::keyboard::KeyboardType;

Q_DECLARE_METATYPE(ui::keyboard::KeyboardType)

namespace {

const QString switchKey = QStringLiteral("Letters or digits and symbols");

QStringList pressAndRelease(const QString& event)
{
    return {QStringLiteral("press ") + event, QStringLiteral("release ") + event};
}

} // namespace

/// What the keys of the keypads do.
class tst_Keypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void factory();
    void unknownType();
    void isNeverMirrored_data();
    void isNeverMirrored();
    void slotCanBeConnectedBySignature();
    void keysSendKeyEvents_data();
    void keysSendKeyEvents();
    void everyCharacterKeyTypesItsName_data();
    void everyCharacterKeyTypesItsName();
    void shiftLastsForOneKey();
    void shiftIsTakenBack();
    void backspaceRepeats();
    void otherKeysDoNotRepeat();
    void okAndCancel();
    void allowEntryDisablesOkAlone();
    void keysWithoutReceiver();
    void deletedByAKey_data();
    void deletedByAKey();
};

void tst_Keypad::factory()
{
    QPointer<IKeypad> keypad;
    {
        QWidget parent;
        keypad = IKeypad::create(KeyboardType::Integer, &parent);
        QVERIFY(keypad);
        QCOMPARE(keypad->parentWidget(), &parent);
        QVERIFY(!keypad->isWindow());
        QCOMPARE(keypad->focusPolicy(), Qt::NoFocus);
    }
    QVERIFY(!keypad);
}

void tst_Keypad::unknownType()
{
    QTest::ignoreMessage(QtWarningMsg, "IKeypad::create: no keypad for the type 99");
    QWidget parent;
    QVERIFY(!IKeypad::create(KeyboardType(99), &parent));
    QVERIFY(parent.children().isEmpty());
}

void tst_Keypad::isNeverMirrored_data()
{
    QTest::addColumn<KeyboardType>("type");
    QTest::addColumn<QString>("row");
    QTest::newRow("integer") << KeyboardType::Integer << "789";
    QTest::newRow("decimal") << KeyboardType::Decimal << "123";
    QTest::newRow("text") << KeyboardType::Text << "qwertyuiop";
}

void tst_Keypad::isNeverMirrored()
{
    QFETCH(KeyboardType, type);
    QFETCH(QString, row);
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    IKeypad* keypad = IKeypad::create(type, &window);
    keypad->resize(keypad->sizeHint());
    window.show();

    for (int i = 1; i < row.size(); ++i) {
        const QPushButton* key = test::keypadKey(*keypad, row.at(i));
        const QPushButton* before = test::keypadKey(*keypad, row.at(i - 1));
        QVERIFY2(key->x() > before->x(), qPrintable(row.at(i)));
        QCOMPARE(key->y(), before->y());
    }
}

void tst_Keypad::slotCanBeConnectedBySignature()
{
    QVERIFY(IKeypad::staticMetaObject.indexOfSlot("allowEntry(bool)") >= 0);
    QVERIFY(IKeypad::staticMetaObject.indexOfSignal("signalOk()") >= 0);
    QVERIFY(IKeypad::staticMetaObject.indexOfSignal("signalCancel()") >= 0);
}

void tst_Keypad::keysSendKeyEvents_data()
{
    QTest::addColumn<KeyboardType>("type");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("event");

    QTest::newRow("digit") << KeyboardType::Integer << "7"
                           << "37 0 7";
    QTest::newRow("sign") << KeyboardType::Integer << "Minus"
                          << "2d 0 -";
    QTest::newRow("backspace") << KeyboardType::Integer << "Backspace"
                               << "1000003 0 \b";
    QTest::newRow("separator") << KeyboardType::Decimal << "Decimal separator"
                               << "2c 0 ,";
    QTest::newRow("letter") << KeyboardType::Text << "q"
                            << "51 0 q";
    QTest::newRow("space") << KeyboardType::Text << "Space"
                           << "20 0  ";
    QTest::newRow("symbol") << KeyboardType::Text << "&"
                            << "26 0 &";
}

void tst_Keypad::keysSendKeyEvents()
{
    QFETCH(KeyboardType, type);
    QFETCH(QString, key);
    QFETCH(QString, event);
    KeyReceiver receiver;
    receiver.setLocale(QLocale(QLocale::German));
    const IKeypad* keypad = IKeypad::create(type, &receiver);

    test::tapKey(*keypad, key);
    QCOMPARE(receiver.takeEvents(), pressAndRelease(event));
}

void tst_Keypad::everyCharacterKeyTypesItsName_data()
{
    QTest::addColumn<KeyboardType>("type");
    QTest::newRow("integer") << KeyboardType::Integer;
    QTest::newRow("decimal") << KeyboardType::Decimal;
    QTest::newRow("text") << KeyboardType::Text;
}

void tst_Keypad::everyCharacterKeyTypesItsName()
{
    QFETCH(KeyboardType, type);
    KeyReceiver receiver;
    const IKeypad* keypad = IKeypad::create(type, &receiver);

    int count = 0;
    const auto keys = keypad->findChildren<QPushButton*>();
    for (QPushButton* key : keys) {
        const QString name = key->accessibleName();
        if (name.length() != 1)
            continue;
        QTest::mouseClick(key, Qt::LeftButton);
        const QString code = QString::number(name.at(0).toUpper().unicode(), 16);
        QCOMPARE(receiver.takeEvents(), pressAndRelease(QStringLiteral("%1 0 %2").arg(code, name)));
        ++count;
    }
    QCOMPARE(count, type == KeyboardType::Text ? 26 + 1 + 10 + 20 : 10);
}

void tst_Keypad::shiftLastsForOneKey()
{
    KeyReceiver receiver;
    const IKeypad* keypad = IKeypad::create(KeyboardType::Text, &receiver);
    const QPushButton* shift = test::keypadKey(*keypad, QStringLiteral("Shift"));
    const QPushButton* letter = test::keypadKey(*keypad, QStringLiteral("q"));

    test::tapKey(*keypad, QStringLiteral("Shift"));
    QVERIFY(receiver.takeEvents().isEmpty());
    QVERIFY(shift->isChecked());
    QCOMPARE(letter->text(), QStringLiteral("Q"));
    QCOMPARE(test::keypadKey(*keypad, QStringLiteral("."))->text(), QStringLiteral("."));

    test::tapKey(*keypad, QStringLiteral("q"));
    QCOMPARE(receiver.takeEvents(), pressAndRelease(QStringLiteral("51 2000000 Q")));
    QVERIFY(!shift->isChecked());
    QCOMPARE(letter->text(), QStringLiteral("q"));

    test::tapKey(*keypad, QStringLiteral("q"));
    QCOMPARE(receiver.takeEvents(), pressAndRelease(QStringLiteral("51 0 q")));
}

void tst_Keypad::shiftIsTakenBack()
{
    KeyReceiver receiver;
    const IKeypad* keypad = IKeypad::create(KeyboardType::Text, &receiver);

    test::tapKey(*keypad, QStringLiteral("Shift"));
    test::tapKey(*keypad, QStringLiteral("Shift"));
    test::tapKey(*keypad, QStringLiteral("q"));
    QCOMPARE(receiver.takeEvents(), pressAndRelease(QStringLiteral("51 0 q")));

    test::tapKey(*keypad, QStringLiteral("Shift"));
    test::tapKey(*keypad, QStringLiteral("."));
    QCOMPARE(receiver.takeEvents(), pressAndRelease(QStringLiteral("2e 0 .")));
}

void tst_Keypad::backspaceRepeats()
{
    KeyReceiver receiver;
    IKeypad* keypad = IKeypad::create(KeyboardType::Integer, &receiver);
    receiver.show();
    QPushButton* backspace = test::keypadKey(*keypad, QStringLiteral("Backspace"));

    QTest::mousePress(backspace, Qt::LeftButton);
    QStringList events = receiver.takeEvents();
    QCOMPARE(events, pressAndRelease(QStringLiteral("1000003 0 \b")));
    QTRY_VERIFY((events += receiver.takeEvents()).size() >= 6);
    QTest::mouseRelease(backspace, Qt::LeftButton);
    QVERIFY(receiver.takeEvents().isEmpty());
}

void tst_Keypad::otherKeysDoNotRepeat()
{
    for (const KeyboardType type :
         {KeyboardType::Integer, KeyboardType::Decimal, KeyboardType::Text}) {
        const QScopedPointer<IKeypad> keypad(IKeypad::create(type, nullptr));
        const auto keys = keypad->findChildren<QPushButton*>();
        for (const QPushButton* key : keys)
            QCOMPARE(key->autoRepeat(), key->accessibleName() == QLatin1String("Backspace"));
    }
}

void tst_Keypad::okAndCancel()
{
    KeyReceiver receiver;
    const IKeypad* keypad = IKeypad::create(KeyboardType::Decimal, &receiver);
    const QSignalSpy ok(keypad, &IKeypad::signalOk);
    const QSignalSpy cancel(keypad, &IKeypad::signalCancel);

    test::tapKey(*keypad, QStringLiteral("OK"));
    QCOMPARE(ok.count(), 1);
    QCOMPARE(cancel.count(), 0);
    test::tapKey(*keypad, QStringLiteral("Cancel"));
    QCOMPARE(ok.count(), 1);
    QCOMPARE(cancel.count(), 1);
    QVERIFY(receiver.takeEvents().isEmpty());
}

void tst_Keypad::allowEntryDisablesOkAlone()
{
    KeyReceiver receiver;
    IKeypad* keypad = IKeypad::create(KeyboardType::Text, &receiver);
    const QSignalSpy ok(keypad, &IKeypad::signalOk);

    keypad->allowEntry(false);
    const auto keys = keypad->findChildren<QPushButton*>();
    for (const QPushButton* key : keys)
        QCOMPARE(key->isEnabled(), key->accessibleName() != QLatin1String("OK"));
    test::tapKey(*keypad, QStringLiteral("OK"));
    QCOMPARE(ok.count(), 0);

    keypad->allowEntry(true);
    test::tapKey(*keypad, QStringLiteral("OK"));
    QCOMPARE(ok.count(), 1);
}

void tst_Keypad::keysWithoutReceiver()
{
    const QScopedPointer<IKeypad> keypad(IKeypad::create(KeyboardType::Text, nullptr));
    test::tapKey(*keypad, QStringLiteral("q"));
    test::tapKey(*keypad, QStringLiteral("Backspace"));
}

void tst_Keypad::deletedByAKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("OK") << "OK";
    QTest::newRow("Cancel") << "Cancel";
    QTest::newRow("digit") << "7";
    QTest::newRow("backspace") << "Backspace";
}

void tst_Keypad::deletedByAKey()
{
    class Deleter : public QObject
    {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() != QEvent::KeyPress)
                return false;
            delete watched;
            return true;
        }
    };

    QFETCH(QString, key);
    const QPointer<QWidget> parent = new QWidget;
    const IKeypad* keypad = IKeypad::create(KeyboardType::Integer, parent);
    Deleter deleter;
    parent->installEventFilter(&deleter);
    connect(keypad, &IKeypad::signalOk, parent, [parent] { delete parent; });
    connect(keypad, &IKeypad::signalCancel, parent, [parent] { delete parent; });

    // Through the button, as QTest would touch it after its end.
    QPushButton* button = test::keypadKey(*keypad, key);
    button->click();
    QVERIFY(!parent);
}

const test::Registration<tst_Keypad> registration;

#include "tst_Keypad.moc"
