#include "EditForm.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QScreen>

using test::EditForm;
using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace {

QSize screenSize()
{
    return QGuiApplication::primaryScreen()->size();
}

} // namespace

/// Where the pop-up really appears, on a screen of the size that the test is run with.
class tst_KeypadOnScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void place_data();
    void place();
};

void tst_KeypadOnScreen::place_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QPoint>("field"); // its top left corner
    const int right = screenSize().width() - 200;
    const int bottom = screenSize().height() - 30;
    const int middle = screenSize().height() / 2 - 15;
    for (const auto type : {KeyboardType::Integer, KeyboardType::Text}) {
        const char* name = type == KeyboardType::Text ? "text" : "integer";
        QTest::addRow("%s, top left", name) << int(type) << QPoint(0, 0);
        QTest::addRow("%s, top right", name) << int(type) << QPoint(right, 0);
        QTest::addRow("%s, middle", name) << int(type) << QPoint(right / 2, middle);
        QTest::addRow("%s, bottom left", name) << int(type) << QPoint(0, bottom);
        QTest::addRow("%s, bottom right", name) << int(type) << QPoint(right, bottom);
    }
}

void tst_KeypadOnScreen::place()
{
    QFETCH(int, type);
    QFETCH(QPoint, field);
    EditForm<KeypadLineEdit> form{KeyboardType(type)};
    form.setWindowFlags(Qt::FramelessWindowHint);
    form.setGeometry(QRect(QPoint(), screenSize()));
    form.field->setGeometry(QRect(field, QSize(200, 30)));
    QVERIFY(form.showActive());
    QTRY_COMPARE(form.field->mapToGlobal(QPoint()), field);

    form.field->setFocus();
    QTRY_VERIFY(form.field->keypad()->isVisible());
    const KeypadPopup* popup = form.field->keypad();
    QVERIFY(QTest::qWaitForWindowExposed(form.field->keypad()));
    const QSize size = popup->sizeHint();
    const int below = field.y() + 30;
    const int y = below + size.height() > screenSize().height() ? field.y() - size.height() : below;
    const int x = qMin(field.x(), screenSize().width() - 10 - size.width());
    QCOMPARE(popup->geometry(), QRect(QPoint(x, y), size));
    // Wherever the field is on the screen, the whole keypad can be reached.
    QVERIFY(QRect(QPoint(), screenSize()).contains(popup->geometry()));
}

const test::Registration<tst_KeypadOnScreen> registration;

#include "tst_KeypadOnScreen.moc"
