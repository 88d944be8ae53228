#include "SelectionControl.h"
#include "TestApplication.h"

#include <QButtonGroup>

#include <functional>

namespace {

/// Logs what happens to it, in order.
class Control : public SelectionControl
{
public:
    explicit Control(QWidget* parent = nullptr)
        : SelectionControl(parent)
    {
        connect(this, &QAbstractButton::toggled, this,
                [this](bool on) { log << QStringLiteral("toggled %1").arg(on); });
        connect(this, &SelectionControl::stateChanged, this,
                [this](int state) { log << QStringLiteral("stateChanged %1").arg(state); });
        connect(this, &QAbstractButton::released, this,
                [this] { log << QStringLiteral("released"); });
        connect(this, &QAbstractButton::clicked, this,
                [this](bool on) { log << QStringLiteral("clicked %1").arg(on); });
        resize(50, 50);
    }

    using SelectionControl::toggle;
    void toggle(Qt::CheckState state) override
    {
        log << QStringLiteral("toggle %1").arg(state);
        if (const std::function<void()> action = onToggle) // a copy, as it may delete the control
            action();
    }

    QStringList log;
    std::function<void()> onToggle;

protected:
    void paintEvent(QPaintEvent*) override { }
};

const QStringList clickedOn{"toggled 1", "stateChanged 2", "toggle 2", "released", "clicked 1"};
const QStringList clickedOff{"toggled 0", "stateChanged 0", "toggle 0", "released", "clicked 0"};
const QStringList setOn{"stateChanged 2", "toggle 2", "toggled 1"};
const QStringList setOff{"stateChanged 0", "toggle 0", "toggled 0"};

using Activation = void (*)(QWidget*);

void mouse(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

void spaceKey(QWidget* widget)
{
    QTest::keyClick(widget, Qt::Key_Space);
}

using Action = std::function<void()>;
using Hook = void (*)(Control*, const Action&);

void onStateChanged(Control* control, const Action& action)
{
    QObject::connect(control, &SelectionControl::stateChanged, action);
}

void onReleased(Control* control, const Action& action)
{
    QObject::connect(control, &QAbstractButton::released, action);
}

void onClicked(Control* control, const Action& action)
{
    QObject::connect(control, &QAbstractButton::clicked, action);
}

void onToggle(Control* control, const Action& action)
{
    control->onToggle = action;
}

} // namespace
Q_DECLARE_METATYPE(Activation)
Q_DECLARE_METATYPE(Hook)

class tst_SelectionControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void newControl();
    void clickOrder_data();
    void clickOrder();
    void setCheckedOrder();
    void sameStateIsPublishedAgain();
    void inheritedToggleSlot();
    void clickFromCodePublishesTwice();
    void autoRepeatPublishesTwice();
    void groupPublishesTheFormerButtonTwice();
    void checkedButtonOfGroupStaysChecked();
    void disabledIgnoresClicks();
    void stateSetInsideStateChanged_data();
    void stateSetInsideStateChanged();
    void deletedInSlot_data();
    void deletedInSlot();
    void deletedLaterInToggled();
};

void tst_SelectionControl::metaObject()
{
    const QMetaObject& meta = SelectionControl::staticMetaObject;
    QCOMPARE(meta.className(), "SelectionControl");
    QCOMPARE(meta.superClass(), &QAbstractButton::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.methodSignature(), QByteArray("stateChanged(int)"));
}

void tst_SelectionControl::newControl()
{
    QWidget parent;
    const Control control(&parent);
    QCOMPARE(control.parent(), &parent);
    QCOMPARE(control.objectName(), QStringLiteral("SelectionControl"));
    QVERIFY(control.isCheckable());
    QVERIFY(!control.isChecked());
    QCOMPARE(control.checkState(), Qt::Unchecked);
    QVERIFY(control.log.isEmpty());
}

void tst_SelectionControl::clickOrder_data()
{
    QTest::addColumn<Activation>("activate");
    QTest::newRow("mouse") << Activation(mouse);
    QTest::newRow("space key") << Activation(spaceKey);
}

void tst_SelectionControl::clickOrder()
{
    QFETCH(Activation, activate);
    Control control;
    control.show();
    activate(&control);
    QCOMPARE(control.log, clickedOn);
    QCOMPARE(control.checkState(), Qt::Checked);
    control.log.clear();
    activate(&control);
    QCOMPARE(control.log, clickedOff);
    QCOMPARE(control.checkState(), Qt::Unchecked);
}

void tst_SelectionControl::setCheckedOrder()
{
    Control control;
    control.setChecked(true);
    QCOMPARE(control.log, setOn);
    QCOMPARE(control.checkState(), Qt::Checked);
    control.log.clear();
    control.setChecked(false);
    QCOMPARE(control.log, setOff);
    QCOMPARE(control.checkState(), Qt::Unchecked);
}

void tst_SelectionControl::sameStateIsPublishedAgain()
{
    Control control;
    QSignalSpy states(&control, &SelectionControl::stateChanged);
    control.setChecked(false);
    QCOMPARE(control.log, QStringList({"stateChanged 0", "toggle 0"}));
    control.setChecked(true);
    control.log.clear();
    control.setChecked(true);
    QCOMPARE(control.log, QStringList({"stateChanged 2", "toggle 2"}));
    QCOMPARE(states.size(), 3);
    QCOMPARE(states.at(1), QVariantList{2});
    QCOMPARE(states.at(2), QVariantList{2});
}

void tst_SelectionControl::inheritedToggleSlot()
{
    Control control;
    control.toggle();
    QCOMPARE(control.log, setOn);
    static_cast<SelectionControl&>(control).toggle();
    QCOMPARE(control.checkState(), Qt::Unchecked);
    QVERIFY(QMetaObject::invokeMethod(&control, "toggle"));
    QCOMPARE(control.checkState(), Qt::Checked);
}

// click() reaches nextCheckState() without Qt's suppression of checkStateSet().
void tst_SelectionControl::clickFromCodePublishesTwice()
{
    Control control;
    control.click();
    QCOMPARE(control.log,
             setOn + QStringList({"stateChanged 2", "toggle 2", "released", "clicked 1"}));
}

void tst_SelectionControl::autoRepeatPublishesTwice()
{
    Control control;
    control.setAutoRepeat(true);
    control.setAutoRepeatDelay(1);
    control.setAutoRepeatInterval(1000000);
    control.show();
    QTest::mousePress(&control, Qt::LeftButton);
    QTRY_VERIFY(!control.log.isEmpty());
    QCOMPARE(control.log,
             setOn + QStringList({"stateChanged 2", "toggle 2", "released", "clicked 1"}));
}

void tst_SelectionControl::groupPublishesTheFormerButtonTwice()
{
    Control first;
    Control second;
    QButtonGroup group;
    group.addButton(&first);
    group.addButton(&second);
    first.setChecked(true);
    first.log.clear();
    second.show();
    mouse(&second);
    QCOMPARE(first.log, setOff + QStringList({"stateChanged 0", "toggle 0"}));
    QCOMPARE(second.log, clickedOn);
}

void tst_SelectionControl::checkedButtonOfGroupStaysChecked()
{
    Control control;
    QButtonGroup group;
    group.addButton(&control);
    control.setChecked(true);
    control.log.clear();
    control.show();
    mouse(&control);
    QCOMPARE(control.log, QStringList({"released", "clicked 1"}));
    QCOMPARE(control.checkState(), Qt::Checked);
}

void tst_SelectionControl::disabledIgnoresClicks()
{
    Control control;
    control.setEnabled(false);
    control.show();
    mouse(&control);
    control.click();
    QVERIFY(control.log.isEmpty());
    control.setChecked(true);
    QCOMPARE(control.log, setOn);
}

void tst_SelectionControl::stateSetInsideStateChanged_data()
{
    clickOrder_data();
}

void tst_SelectionControl::stateSetInsideStateChanged()
{
    QFETCH(Activation, activate);
    Control control;
    connect(&control, &SelectionControl::stateChanged, &control, [&control](int state) {
        if (state == Qt::Checked)
            control.setChecked(false);
    });
    control.show();
    activate(&control);
    QCOMPARE(control.checkState(), Qt::Unchecked);
    control.setChecked(true);
    QCOMPARE(control.checkState(), Qt::Unchecked);
    // What a state carries is what stateChanged() said, also when a slot has changed it since.
    QCOMPARE(control.log.filter(QStringLiteral("toggle 2")).size(), 2);
}

void tst_SelectionControl::deletedInSlot_data()
{
    QTest::addColumn<Activation>("activate");
    QTest::addColumn<Hook>("hook");
    const QVector<QPair<QByteArray, Hook>> hooks{{"stateChanged()", onStateChanged},
                                                 {"released()", onReleased},
                                                 {"clicked()", onClicked},
                                                 {"toggle(Qt::CheckState)", onToggle}};
    for (const auto& [name, hook] : hooks) {
        QTest::newRow(("mouse, " + name).constData()) << Activation(mouse) << hook;
        QTest::newRow(("space key, " + name).constData()) << Activation(spaceKey) << hook;
    }
}

void tst_SelectionControl::deletedInSlot()
{
    QFETCH(Activation, activate);
    QFETCH(Hook, hook);
    QPointer<Control> control = new Control;
    hook(control, [&control] { delete control; });
    control->show();
    activate(control);
    QVERIFY(!control);
}

void tst_SelectionControl::deletedLaterInToggled()
{
    QPointer<Control> control = new Control;
    connect(control, &QAbstractButton::toggled, control, &QObject::deleteLater);
    control->show();
    mouse(control);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!control);
}

const test::Registration<tst_SelectionControl> registration;

#include "tst_SelectionControl.moc"
