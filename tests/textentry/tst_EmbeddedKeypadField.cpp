#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QWindow>

using ui::KeypadLineEdit;
using ui::keyboard::KeyboardType;

namespace {

bool isUp(const KeypadLineEdit* field)
{
    return field->keypad() && field->keypad()->isVisible();
}

/// As the window system reports it, unlike QTest's clicks on widgets.
void tap(const QWidget& window, const QPoint& global)
{
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, window.mapFromGlobal(global));
}

bool showActive(QWidget& window)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return false;
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

} // namespace

/// A field with a keypad where it is no ordinary child of a window: in a graphics scene, and in a
/// pop-up.
class tst_EmbeddedKeypadField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }

    void inAScene_data();
    void inAScene();
    void inAPopup();
};

void tst_EmbeddedKeypadField::inAScene_data()
{
    QTest::addColumn<int>("angle");
    QTest::newRow("upright") << 0;
    QTest::newRow("turned") << 90;
}

/// The first tap opens the keypad beside the field and leaves the text; the keypad's keys work.
void tst_EmbeddedKeypadField::inAScene()
{
    QFETCH(int, angle);
    QGraphicsScene scene(-400, -240, 800, 480);
    QGraphicsView view(&scene);
    view.resize(820, 500);
    auto* form = new QWidget;
    form->resize(300, 100);
    auto* field = new KeypadLineEdit(form, KeyboardType::Integer);
    field->setGeometry(20, 20, 200, 30);
    field->setText(QStringLiteral("15"));
    scene.addWidget(form)->setRotation(angle);
    QVERIFY(showActive(view));
    const auto tapField = [&] {
        const QPointF inScene = form->graphicsProxyWidget()->mapToScene(QPointF(120, 35));
        tap(view, view.viewport()->mapToGlobal(view.mapFromScene(inScene)));
    };

    for (const char* const key : {"4", "7"}) {
        const QString before = field->text();
        tapField();
        QTRY_VERIFY(isUp(field));
        QVERIFY(!field->keypad()->graphicsProxyWidget());
        QVERIFY(field->hasFocus());
        QTRY_COMPARE(field->selectedText(), before);
        test::tapKey(*field->keypad(), QString::fromLatin1(key));
        QCOMPARE(field->text(), QString::fromLatin1(key));
        test::tapKey(*field->keypad(), QStringLiteral("OK"));
        QTRY_VERIFY(!isUp(field));
        QVERIFY(!field->hasFocus());
        QCOMPARE(field->text(), QString::fromLatin1(key));
    }
    tapField();
    QTRY_VERIFY(isUp(field));
    test::tapKey(*field->keypad(), QStringLiteral("1"));
    test::tapKey(*field->keypad(), QStringLiteral("Cancel"));
    QTRY_VERIFY(!isUp(field));
    QCOMPARE(field->text(), QStringLiteral("7"));
}

/// A tap outside closes one pop-up after the other; with the last one the edit ends.
void tst_EmbeddedKeypadField::inAPopup()
{
    QWidget window;
    window.resize(800, 480);
    QWidget panel(&window, Qt::Popup);
    panel.resize(300, 100);
    KeypadLineEdit field(&panel, KeyboardType::Integer);
    field.setGeometry(20, 20, 200, 30);
    field.setText(QStringLiteral("15"));
    QVERIFY(showActive(window));
    const QPoint outside = window.mapToGlobal(QPoint(780, 460));
    const auto tapField = [&] { tap(panel, field.mapToGlobal(field.rect().center())); };

    for (int iteration = 0; iteration < 2; ++iteration) {
        panel.move(window.mapToGlobal(QPoint(50, 50)));
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        tapField();
        QTRY_VERIFY(isUp(&field));
        QVERIFY(field.hasFocus());
        QTRY_VERIFY(field.hasSelectedText());
        test::tapKey(*field.keypad(), QStringLiteral("4"));
        QCOMPARE(field.text(), QStringLiteral("4"));

        tap(window, outside);
        QTRY_VERIFY(!isUp(&field));
        QVERIFY(panel.isVisible());
        tap(window, outside);
        QTRY_VERIFY(!panel.isVisible());
        QTRY_COMPARE(field.text(), QStringLiteral("15"));
        QVERIFY(!field.hasFocus());
    }
}

const test::Registration<tst_EmbeddedKeypadField> registration;

#include "tst_EmbeddedKeypadField.moc"
