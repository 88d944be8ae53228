#include "KeypadKeys.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QDialog>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QWindow>

#include <functional>

using ui::KeypadLineEdit;
using ui::KeypadPopup;
using ui::keyboard::KeyboardType;

namespace {

/// A dialog over a window, with a field on a page of its own.
class Dialog : public QDialog
{
public:
    explicit Dialog(QWidget* parent)
        : QDialog(parent)
        , pages(new QStackedWidget(this))
        , group(new QWidget)
        , field(new KeypadLineEdit(group, KeyboardType::Integer))
    {
        resize(600, 400);
        pages->resize(600, 400);
        pages->addWidget(group);
        pages->addWidget(new QWidget);
        field->setGeometry(20, 20, 200, 30);
        field->setText(QStringLiteral("15"));
    }

    /// Shows whatever a way of hiding has hidden.
    bool showAgain()
    {
        if (group->parentWidget() != pages)
            pages->insertWidget(0, group);
        if (field->parentWidget() != group)
            field->setParent(group);
        pages->setCurrentWidget(group);
        group->show();
        field->show();
        const bool wasMinimized = isMinimized();
        showNormal();
        if (!QTest::qWaitForWindowExposed(this))
            return false;
        // What is shown anew gets the focus anyway, and if it is asked for once more, the window
        // manager takes it away and gives it back at some later time.
        if (wasMinimized)
            activateWindow();
        return QTest::qWaitForWindowActive(this);
    }

    /// As the window system reports it, unlike QTest's clicks on widgets.
    void tapField()
    {
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {},
                          field->mapTo(this, field->rect().center()));
    }

    bool isKeypadUp() const
    {
        return field->keypad() && field->keypad()->isVisible();
    }

    bool openKeypad()
    {
        tapField();
        return QTest::qWaitFor([this] { return isKeypadUp(); })
            && QTest::qWaitForWindowExposed(field->keypad());
    }

    QStackedWidget* const pages;
    QWidget* const group;
    KeypadLineEdit* const field;
};

using Hiding = std::function<void(Dialog&)>;

} // namespace

Q_DECLARE_METATYPE(Hiding)

/// A keypad is never left over nothing, and the field works as before when it is shown again.
class tst_KeypadGoesWithItsField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }
    void init();
    void cleanup();

    void hidden_data();
    void hidden();
    void hiddenBeforeItIsShown();
    void withAnyLineEdit();
    void focusIsKeptWithoutKeypad();
    void otherHidingsAreNoMatter();

private:
    QScopedPointer<QWidget> m_window;
    Dialog* m_dialog = nullptr;
};

void tst_KeypadGoesWithItsField::init()
{
    m_window.reset(new QWidget);
    m_window->resize(700, 500);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.data()));
    m_dialog = new Dialog(m_window.data());
    QVERIFY(m_dialog->showAgain());
}

void tst_KeypadGoesWithItsField::cleanup()
{
    m_window.reset();
}

void tst_KeypadGoesWithItsField::hidden_data()
{
    QTest::addColumn<Hiding>("hide");
    const auto row = [](const char* name, const Hiding& hide) { QTest::newRow(name) << hide; };
    row("window hidden", [](Dialog& dialog) { dialog.hide(); });
    row("window closed", [](Dialog& dialog) { dialog.close(); });
    row("dialog rejected", [](Dialog& dialog) { dialog.reject(); });
    row("dialog accepted", [](Dialog& dialog) { dialog.accept(); });
    row("minimised", [](Dialog& dialog) { dialog.showMinimized(); });
    row("field hidden", [](Dialog& dialog) { dialog.field->hide(); });
    row("group hidden", [](Dialog& dialog) { dialog.group->hide(); });
    row("page turned", [](Dialog& dialog) { dialog.pages->setCurrentIndex(1); });
    row("field reparented", [](Dialog& dialog) { dialog.field->setParent(dialog.parentWidget()); });
    row("field without a parent", [](Dialog& dialog) { dialog.field->setParent(nullptr); });
    row("group reparented", [](Dialog& dialog) { dialog.group->setParent(dialog.parentWidget()); });
}

void tst_KeypadGoesWithItsField::hidden()
{
    QFETCH(Hiding, hide);
    for (int iteration = 0; iteration < 2; ++iteration) {
        QVERIFY(m_dialog->openKeypad());
        test::tapKey(*m_dialog->field->keypad(), QStringLiteral("4"));
        hide(*m_dialog);
        QTRY_VERIFY(!m_dialog->isKeypadUp());
        QVERIFY(!QApplication::activePopupWidget());
        QTRY_VERIFY(!m_dialog->field->hasFocus());
        QCOMPARE(m_dialog->field->text(), QStringLiteral("15"));

        if (!m_dialog->isVisible()) {
            // A window manager may give the focus to another window at any time from now on, and
            // even when the dialog is shown again.
            if (QGuiApplication::platformName() != QLatin1String("offscreen"))
                return;
            m_window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
        }
        QVERIFY(m_dialog->showAgain());
    }
    QVERIFY(m_dialog->openKeypad());
    QTRY_VERIFY(m_dialog->field->hasFocus());
}

/// The dialog is gone before the keypad that a tap has asked for comes.
void tst_KeypadGoesWithItsField::hiddenBeforeItIsShown()
{
    const QSignalSpy started(m_dialog->field, &KeypadLineEdit::startKeypad);
    m_dialog->tapField();
    m_dialog->field->showKeypad(); // on offscreen as elsewhere, whatever the tap has done yet
    m_dialog->reject();
    QTRY_COMPARE(started.count(), 1);
    QTRY_VERIFY(!m_dialog->isKeypadUp());
    QTRY_VERIFY(!m_dialog->field->hasFocus());
}

void tst_KeypadGoesWithItsField::withAnyLineEdit()
{
    auto* edit = new ui::LineEdit(m_dialog->group);
    edit->setGeometry(20, 60, 200, 30);
    edit->show();
    KeypadPopup popup(edit, QString(), KeyboardType::Integer, -1);
    edit->setFocus();
    popup.show();
    QVERIFY(QTest::qWaitForWindowExposed(&popup));

    QHideEvent event;
    QVERIFY(!popup.eventFilter(edit, &event));
    QVERIFY(popup.isVisible()); // until events are processed
    QTRY_VERIFY(!popup.isVisible());
    QVERIFY(edit->hasFocus()); // since it is visible after all
}

void tst_KeypadGoesWithItsField::focusIsKeptWithoutKeypad()
{
    auto* edit = new QLineEdit(m_dialog->group);
    edit->show();
    edit->setFocus();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("resultValidated")));
    const KeypadPopup popup(edit, QString(), KeyboardType::Integer, -1);
    m_dialog->hide();
    QCoreApplication::processEvents();
    QCOMPARE(m_dialog->focusWidget(), edit);
}

void tst_KeypadGoesWithItsField::otherHidingsAreNoMatter()
{
    QVERIFY(m_dialog->openKeypad());
    QHideEvent event;
    QVERIFY(!m_dialog->field->keypad()->eventFilter(m_dialog->group, &event));
    m_window->hide();
    QCoreApplication::processEvents();
    QVERIFY(m_dialog->isKeypadUp());
}

const test::Registration<tst_KeypadGoesWithItsField> registration;

#include "tst_KeypadGoesWithItsField.moc"
