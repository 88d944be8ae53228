#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include "GalleryPage.h"
#include "pages/Pages.h"
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QLabel>
#include <QPushButton>
#include <QValidator>

#include <memory>

using ui::KeypadLineEdit;

/// The settings form.
class tst_TextEntryPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void everyFieldIsAnDemoWidget();
    void everyFieldStartsAcceptable();
    void everyKeypadCanTypeIt_data();
    void everyKeypadCanTypeIt();

private:
    static KeypadLineEdit* field(const QWidget& page, const QString& name);
};

KeypadLineEdit* tst_TextEntryPage::field(const QWidget& page, const QString& name)
{
    const auto fields = page.findChildren<KeypadLineEdit*>();
    for (KeypadLineEdit* candidate : fields) {
        if (candidate->accessibleName().startsWith(name))
            return candidate;
    }
    return nullptr;
}

void tst_TextEntryPage::everyFieldIsAnDemoWidget()
{
    const std::unique_ptr<GalleryPage> page(makeTextEntryPage(nullptr));
    QList<QWidget*> demoWidgets;
    for (const GalleryPage::DemoWidget& demoWidget : page->demoWidgets())
        demoWidgets.append(demoWidget.widget);
    const auto fields = page->findChildren<KeypadLineEdit*>();
    QCOMPARE(fields.size(), 6);
    for (KeypadLineEdit* candidate : fields)
        QVERIFY(demoWidgets.contains(candidate));
}

void tst_TextEntryPage::everyFieldStartsAcceptable()
{
    const std::unique_ptr<GalleryPage> page(makeTextEntryPage(nullptr));
    const auto fields = page->findChildren<KeypadLineEdit*>();
    for (const KeypadLineEdit* candidate : fields) {
        QVERIFY(candidate->validator());
        QVERIFY2(candidate->hasAcceptableInput(), qPrintable(candidate->accessibleName()));
    }
    QCOMPARE(field(*page, QStringLiteral("PIN"))->echoMode(), QLineEdit::Password);
}

void tst_TextEntryPage::everyKeypadCanTypeIt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("address") << "IP address"
                             << "1 0 . 0 . 0 . 2 5 5"
                             << "10.0.0.255";
    QTest::newRow("temperature") << "Temperature"
                                 << "Minus 4 Decimal_separator 5"
                                 << "-4.5";
    QTest::newRow("name") << "Name"
                          << "Shift h a l l"
                          << "Hall";
    QTest::newRow("PIN") << "PIN"
                         << "9 8 7 6"
                         << "9876";
    QTest::newRow("channel") << "Channel"
                             << "4 2"
                             << "42";
    QTest::newRow("port") << "Port"
                          << "8 0"
                          << "80";
}

void tst_TextEntryPage::everyKeypadCanTypeIt()
{
    QFETCH(QString, name);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    const std::unique_ptr<GalleryPage> page(makeTextEntryPage(nullptr));
    page->show();
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    KeypadLineEdit* edited = field(*page, name);
    edited->setFocus();
    QTRY_VERIFY(edited->keypad()->isVisible());
    QCOMPARE(edited->keypad()->findChild<QLabel*>()->text(), edited->accessibleName());
    QTRY_VERIFY(edited->hasSelectedText());

    for (QString key : keys.split(QLatin1Char(' '))) {
        key.replace(QLatin1Char('_'), QLatin1Char(' '));
        const QStringList shown = test::shownKeys(*edited->keypad());
        QVERIFY2(shown.contains(key), qPrintable(key));
        test::tapKey(*edited->keypad(), key);
    }
    QCOMPARE(edited->text(), text);
    QVERIFY(edited->property("inputValid").toBool());
    test::tapKey(*edited->keypad(), QStringLiteral("OK"));
    QTRY_VERIFY(!edited->keypad()->isVisible());
    QCOMPARE(edited->text(), text);
}

const test::Registration<tst_TextEntryPage> registration;

#include "tst_TextEntryPage.moc"
