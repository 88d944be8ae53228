#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <ui/keyboard/IKeypad.h>
#include <ui/KeypadPopup.h>
#include <ui/LineEdit.h>

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

using ui::KeypadPopup;
using ui::keyboard::IKeypad;
using ui::keyboard::KeyboardType;

/// The pop-up, what it is made of and what it belongs to, deleted one by one.
class tst_KeypadPopupDeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void diesWithItsParent();
    void outlivesTheEditedWidget();
    void deletedInItsOwnSignals_data();
    void deletedInItsOwnSignals();
    void outlivesItsKeypad();
    void outlivesItsSubtitle();
};

void tst_KeypadPopupDeletion::diesWithItsParent()
{
    auto* edit = new ui::LineEdit;
    const QPointer<KeypadPopup> popup = new KeypadPopup(edit, QString(), KeyboardType::Integer, -1);
    popup->show();
    delete edit;
    QVERIFY(!popup);
}

void tst_KeypadPopupDeletion::outlivesTheEditedWidget()
{
    QWidget other;
    auto* edit = new ui::LineEdit;
    auto* popup = new KeypadPopup(edit, QString(), KeyboardType::Integer, -1);
    popup->setParent(&other, Qt::Popup);
    delete edit;
    popup->move(7, 8);
    popup->locatePopup();
    QCOMPARE(popup->pos(), QPoint(7, 8));
    popup->setKeypadSectionVisible(0, false);
    QTest::keyClicks(popup, QStringLiteral("ab"));
    QTest::mouseClick(popup, Qt::LeftButton);

    popup->show();
    QMouseEvent outside(QEvent::MouseButtonPress, QPointF(-9, -9),
                        popup->mapToGlobal(QPoint(-9, -9)), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(popup, &outside);
    QVERIFY(!popup->isVisible()); // as any pop-up
}

void tst_KeypadPopupDeletion::deletedInItsOwnSignals_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("OK") << "OK";
    QTest::newRow("Cancel") << "Cancel";
}

void tst_KeypadPopupDeletion::deletedInItsOwnSignals()
{
    QFETCH(QString, key);
    ui::LineEdit edit;
    const QPointer<KeypadPopup> popup =
        new KeypadPopup(&edit, QString(), KeyboardType::Integer, -1);
    connect(popup, &KeypadPopup::signalOk, &edit, [popup] { delete popup; });
    connect(popup, &KeypadPopup::signalCancel, &edit, [popup] { delete popup; });
    test::keypadKey(*popup, key)->click();
    QVERIFY(!popup);
}

void tst_KeypadPopupDeletion::outlivesItsKeypad()
{
    ui::LineEdit edit;
    edit.resize(100, 30);
    KeypadPopup popup(&edit, QString(), KeyboardType::Integer, -1);
    auto* keypad = popup.findChild<IKeypad*>();
    connect(&popup, &KeypadPopup::signalOk, &edit, [keypad] { delete keypad; });
    const QSignalSpy ok(&popup, &KeypadPopup::signalOk);
    test::keypadKey(popup, QStringLiteral("OK"))->click();
    QCOMPARE(ok.count(), 1);

    popup.move(7, 8);
    popup.setKeypadSectionVisible(0, false);
    QCOMPARE(popup.pos(), QPoint(7, 8)); // as with a factory that makes no keypad
    popup.locatePopup();
    QCOMPARE(popup.pos(), edit.mapToGlobal(QPoint(0, 30)));
    QTest::keyClicks(&popup, QStringLiteral("ab"));
    QCOMPARE(edit.text(), QStringLiteral("ab"));
}

void tst_KeypadPopupDeletion::outlivesItsSubtitle()
{
    ui::LineEdit edit;
    KeypadPopup popup(&edit, QStringLiteral("Title"), KeyboardType::Integer, -1);
    delete popup.findChild<QLabel*>();
    popup.setSubtitleLabel(QStringLiteral("Other"));
    popup.setKeypadSectionVisible(0, false);
    QVERIFY(popup.findChildren<QLabel*>().isEmpty());
}

const test::Registration<tst_KeypadPopupDeletion> registration;

#include "tst_KeypadPopupDeletion.moc"
