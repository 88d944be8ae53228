#include "AllClasses.h"
#include "PaintRecorder.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <Switch.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QMetaProperty>

#include <memory>

using test::ClassInfo;

namespace {

/// The timers of \a object and all that it owns, and of the models of its views, which it may not
/// own.
QVector<int> timers(QObject* object)
{
    QVector<int> result;
    const auto registered = QAbstractEventDispatcher::instance()->registeredTimers(object);
    for (const auto& timer : registered)
        result.append(timer.timerId);
    if (const auto* view = qobject_cast<QAbstractItemView*>(object)) {
        if (view->model() && view->model()->parent() != view)
            result += timers(view->model());
    }
    for (QObject* child : object->children())
        result += timers(child);
    return result;
}

} // namespace

/// What a widget does while nobody does anything to it: nothing.
class tst_Idle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void noTimerRuns_data();
    void noTimerRuns();
    void noTimerRunsAfterATransition();
    void noTimerRunsAfterTheKeypad();
    void nothingIsPaintedAgain_data();
    void nothingIsPaintedAgain();

private:
    void addWidgets();
    /// The widget of the row, shown.
    QWidget* showWidget();

    std::unique_ptr<QWidget> m_window;
};

void tst_Idle::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_Idle::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(800, 480);
    m_window->setFocusPolicy(Qt::StrongFocus);
}

void tst_Idle::addWidgets()
{
    QTest::addColumn<ClassInfo>("info");
    for (const ClassInfo& info : test::allWidgetClasses())
        QTest::newRow(info.name) << info;
}

QWidget* tst_Idle::showWidget()
{
    QFETCH(ClassInfo, info);
    auto* widget = static_cast<QWidget*>(info.createTypical(m_window.get()));
    widget->resize(400, 200);
    m_window->show();
    return QTest::qWaitForWindowActive(m_window.get()) ? widget : nullptr;
}

void tst_Idle::noTimerRuns_data()
{
    addWidgets();
}

void tst_Idle::noTimerRuns()
{
    QVERIFY(showWidget());
    QTRY_COMPARE(timers(m_window.get()), QVector<int>());
}

void tst_Idle::noTimerRunsAfterATransition()
{
    auto* control = new Switch(m_window.get());
    m_window->show();
    control->setChecked(true);
    const auto animations = control->findChildren<QAbstractAnimation*>();
    QCOMPARE(animations.size(), 3);
    QCOMPARE(animations.first()->state(), QAbstractAnimation::Running);
    for (const QAbstractAnimation* animation : animations)
        QTRY_COMPARE(animation->state(), QAbstractAnimation::Stopped);
    QTRY_COMPARE(timers(m_window.get()), QVector<int>());
}

void tst_Idle::noTimerRunsAfterTheKeypad()
{
    auto* field = new ui::KeypadLineEdit(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->setFocus();
    field->setFocus(Qt::MouseFocusReason);
    QTRY_VERIFY(field->keypad() && field->keypad()->isVisible());
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(!field->keypad()->isVisible());
    QTRY_COMPARE(timers(m_window.get()), QVector<int>());
}

void tst_Idle::nothingIsPaintedAgain_data()
{
    addWidgets();
}

void tst_Idle::nothingIsPaintedAgain()
{
    QWidget* widget = showWidget();
    QVERIFY(widget);
    QTRY_COMPARE(timers(m_window.get()), QVector<int>());
    test::PaintRecorder recorder(widget);
    recorder.takeRegions();

    const QMetaObject* meta = widget->metaObject();
    // The library's classes stand before Qt's; all of theirs compare what they are set to.
    while (!QByteArray(meta->className()).startsWith('Q')) {
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (qstrcmp(property.name(), "text") == 0)
                continue; // QLineEdit's own setter, which paints the same text again
            property.write(widget, property.read(widget));
            QVERIFY2(recorder.takeRegions().isEmpty(), property.name());
        }
        meta = meta->superClass();
    }
}

const test::Registration<tst_Idle> registration;

#include "tst_Idle.moc"
