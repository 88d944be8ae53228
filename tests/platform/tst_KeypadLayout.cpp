#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <ui/keyboard/IKeypad.h>

#include <QPushButton>
#include <QTranslator>

#include <limits>

using ui::keyboard::IKeypad;
using ui::keyboard::KeyboardType;

Q_DECLARE_METATYPE(ui::keyboard::KeyboardType)

namespace {

enum Section { Letters, Digits, Symbols };

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

/// A language in which every text is in angle brackets.
class BracketTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override
    {
        return false;
    }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QLatin1Char('<') + QString::fromUtf8(text) + QLatin1Char('>');
    }
};

} // namespace

/// Which keys the keypads offer, where, and how large.
class tst_KeypadLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void keysOfEachType_data();
    void keysOfEachType();
    void decimalSeparatorFollowsTheLocale_data();
    void decimalSeparatorFollowsTheLocale();
    void localeOfTheKeypadItself();
    void digitsLieAsOnACalculator();
    void sectionsChangeTheSizeHint_data();
    void sectionsChangeTheSizeHint();
    void unknownSectionsAreIgnored_data();
    void unknownSectionsAreIgnored();
    void switchKeyExchangesTheCharacters();
    void keysFitAFinger_data();
    void keysFitAFinger();
    void keysGrowWithTheFont();
    void translatedKeys();
};

void tst_KeypadLayout::keysOfEachType_data()
{
    QTest::addColumn<KeyboardType>("type");
    QTest::addColumn<QStringList>("keys");

    QTest::newRow("integer") << KeyboardType::Integer
                             << words("1 2 3 4 5 6 7 8 9 Minus Backspace Cancel OK 0");
    QTest::newRow("decimal") << KeyboardType::Decimal
                             << (words("1 2 3 4 5 6 7 8 9 Minus Backspace Cancel OK 0")
                                 << QStringLiteral("Decimal separator"));
    QTest::newRow("text") << KeyboardType::Text
                          << (words("q w e r t y u i o p a s d f g h j k l Shift z x c v b n m .")
                              << QStringLiteral("Letters or digits and symbols")
                              << words("Space Backspace Cancel OK"));
}

void tst_KeypadLayout::keysOfEachType()
{
    QFETCH(KeyboardType, type);
    QFETCH(QStringList, keys);
    const QScopedPointer<IKeypad> keypad(IKeypad::create(type, nullptr));

    QCOMPARE(test::shownKeys(*keypad), keys);
    const auto buttons = keypad->findChildren<QPushButton*>();
    for (const QPushButton* key : buttons) {
        QVERIFY2(!key->text().isEmpty(), qPrintable(key->accessibleName()));
        QVERIFY2(key->shortcut().isEmpty(), qPrintable(key->accessibleName()));
        QCOMPARE(key->focusPolicy(), Qt::NoFocus);
    }
}

void tst_KeypadLayout::decimalSeparatorFollowsTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("separator");

    QTest::newRow("English") << QLocale(QLocale::English) << QStringLiteral(".");
    QTest::newRow("German") << QLocale(QLocale::German) << QStringLiteral(",");
    QTest::newRow("Persian") << QLocale(QLocale::Persian) << QString(QChar(0x066b));
}

void tst_KeypadLayout::decimalSeparatorFollowsTheLocale()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, separator);
    QWidget parent;
    parent.setLocale(locale);
    const IKeypad* keypad = IKeypad::create(KeyboardType::Decimal, &parent);

    QCOMPARE(test::keypadKey(*keypad, QStringLiteral("Decimal separator"))->text(), separator);
}

void tst_KeypadLayout::localeOfTheKeypadItself()
{
    const QScopedPointer<IKeypad> keypad(IKeypad::create(KeyboardType::Decimal, nullptr));
    keypad->setLocale(QLocale(QLocale::German));

    QCOMPARE(test::keypadKey(*keypad, QStringLiteral("Decimal separator"))->text(),
             QStringLiteral(","));
}

void tst_KeypadLayout::digitsLieAsOnACalculator()
{
    const QScopedPointer<IKeypad> keypad(IKeypad::create(KeyboardType::Decimal, nullptr));
    keypad->show();
    const auto center = [&](const char* name) {
        return test::keypadKey(*keypad, QString::fromUtf8(name))->geometry().center();
    };

    QCOMPARE(center("7").y(), center("9").y());
    QCOMPARE(center("7").x(), center("1").x());
    QVERIFY(center("7").y() < center("4").y());
    QVERIFY(center("4").y() < center("1").y());
    QVERIFY(center("1").y() < center("0").y());
    QVERIFY(center("Minus").x() < center("0").x());
    QVERIFY(center("0").x() < center("Decimal separator").x());
    QVERIFY(center("9").x() < center("Backspace").x());
}

void tst_KeypadLayout::sectionsChangeTheSizeHint_data()
{
    QTest::addColumn<KeyboardType>("type");
    QTest::addColumn<int>("section");
    QTest::addColumn<bool>("shownAtFirst");

    QTest::newRow("integer") << KeyboardType::Integer << 0 << true;
    QTest::newRow("decimal") << KeyboardType::Decimal << 0 << true;
    QTest::newRow("letters") << KeyboardType::Text << int(Letters) << true;
    QTest::newRow("digits") << KeyboardType::Text << int(Digits) << false;
    QTest::newRow("symbols") << KeyboardType::Text << int(Symbols) << false;
}

void tst_KeypadLayout::sectionsChangeTheSizeHint()
{
    QFETCH(KeyboardType, type);
    QFETCH(int, section);
    QFETCH(bool, shownAtFirst);
    const QScopedPointer<IKeypad> keypad(IKeypad::create(type, nullptr));
    const QSize size = keypad->sizeHint();
    const QStringList keys = test::shownKeys(*keypad);

    keypad->setSectionVisible(section, shownAtFirst);
    QCOMPARE(keypad->sizeHint(), size);

    keypad->setSectionVisible(section, !shownAtFirst);
    QVERIFY(keypad->sizeHint() != size);
    QCOMPARE(keypad->sizeHint().expandedTo(size), shownAtFirst ? size : keypad->sizeHint());
    QVERIFY(test::shownKeys(*keypad).contains(QStringLiteral("OK")));
    QVERIFY(test::shownKeys(*keypad).contains(QStringLiteral("Cancel")));

    keypad->setSectionVisible(section, shownAtFirst);
    QCOMPARE(keypad->sizeHint(), size);
    QCOMPARE(test::shownKeys(*keypad), keys);
}

void tst_KeypadLayout::unknownSectionsAreIgnored_data()
{
    QTest::addColumn<int>("section");

    QTest::newRow("none") << -1;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("one too many") << Symbols + 1;
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void tst_KeypadLayout::unknownSectionsAreIgnored()
{
    QFETCH(int, section);
    const QScopedPointer<IKeypad> keypad(IKeypad::create(KeyboardType::Text, nullptr));
    const QStringList keys = test::shownKeys(*keypad);

    keypad->setSectionVisible(section, false);
    QCOMPARE(test::shownKeys(*keypad), keys);
    keypad->setSectionVisible(section, true);
    QCOMPARE(test::shownKeys(*keypad), keys);
}

void tst_KeypadLayout::switchKeyExchangesTheCharacters()
{
    const QString switchKey = QStringLiteral("Letters or digits and symbols");
    const QScopedPointer<IKeypad> keypad(IKeypad::create(KeyboardType::Text, nullptr));
    const QStringList letters = test::shownKeys(*keypad);
    const QSize size = keypad->sizeHint();

    test::tapKey(*keypad, switchKey);
    QCOMPARE(test::shownKeys(*keypad),
             words("1 2 3 4 5 6 7 8 9 0 ! @ # % & * ( ) = _ - + / : ; , . ' \" ?")
                 << switchKey << words("Space Backspace Cancel OK"));
    QCOMPARE(keypad->sizeHint(), size); // a pop-up around it need not move
    QCOMPARE(test::keypadKey(*keypad, QStringLiteral("&"))->text(), QStringLiteral("&&"));

    test::tapKey(*keypad, switchKey);
    QCOMPARE(test::shownKeys(*keypad), letters);
}

void tst_KeypadLayout::keysFitAFinger_data()
{
    QTest::addColumn<KeyboardType>("type");
    QTest::newRow("integer") << KeyboardType::Integer;
    QTest::newRow("decimal") << KeyboardType::Decimal;
    QTest::newRow("text") << KeyboardType::Text;
}

void tst_KeypadLayout::keysFitAFinger()
{
    QFETCH(KeyboardType, type);
    const QScopedPointer<IKeypad> keypad(IKeypad::create(type, nullptr));
    keypad->resize(keypad->sizeHint());
    keypad->show();

    const auto keys = keypad->findChildren<QPushButton*>();
    for (const QPushButton* key : keys) {
        if (key->isHidden())
            continue;
        QVERIFY2(key->width() >= 48 && key->height() >= 42, qPrintable(key->accessibleName()));
        QVERIFY(keypad->rect().contains(key->geometry()));
        for (const QPushButton* other : keys)
            QVERIFY(other == key || other->isHidden()
                    || !other->geometry().intersects(key->geometry()));
    }
    // With a pop-up's frame and subtitle, all of it lies on a screen of 480 lines, above or below.
    QVERIFY(keypad->sizeHint().height() <= 180);
    QVERIFY(keypad->sizeHint().width() <= 600);
}

void tst_KeypadLayout::keysGrowWithTheFont()
{
    const QScopedPointer<IKeypad> keypad(IKeypad::create(KeyboardType::Integer, nullptr));
    QFont font = keypad->font();
    font.setPixelSize(60);
    keypad->setFont(font);
    const QPushButton* key = test::keypadKey(*keypad, QStringLiteral("Cancel"));

    QVERIFY(key->sizeHint().width()
            > key->fontMetrics().horizontalAdvance(QStringLiteral("Cancel")));
    QVERIFY(key->sizeHint().height() > 60);
    QCOMPARE(key->minimumSizeHint(), key->sizeHint());
}

void tst_KeypadLayout::translatedKeys()
{
    const QScopedPointer<IKeypad> keypad(IKeypad::create(KeyboardType::Text, nullptr));
    const QPushButton* cancel = test::keypadKey(*keypad, QStringLiteral("Cancel"));
    const QPushButton* shift = test::keypadKey(*keypad, QStringLiteral("Shift"));
    BracketTranslator translator;

    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(cancel->text(), QStringLiteral("<Cancel>"));
    QCOMPARE(cancel->accessibleName(), QStringLiteral("<Cancel>"));
    QCOMPARE(shift->accessibleName(), QStringLiteral("<Shift>"));

    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(cancel->text(), QStringLiteral("Cancel"));
}

const test::Registration<tst_KeypadLayout> registration;

#include "tst_KeypadLayout.moc"
