#include "TestApplication.h"

#include <ClickableLabel.h>
#include <ui/CBatteryStatusWidget.h>
#include <ui/LineEdit.h>

#include <QAccessibleWidget>
#include <QTemporaryDir>
#include <QValidator>

#include <memory>

namespace {

/// An application's own interface for the class of the library that it is asked for.
template <typename Widget>
QAccessibleInterface* makeOwn(const QString& className, QObject* object)
{
    auto* widget = qobject_cast<Widget*>(object);
    const bool asked = className == QLatin1String(Widget::staticMetaObject.className());
    return widget && asked ? new QAccessibleWidget(widget, QAccessible::Clock) : nullptr;
}

template <typename Widget>
class Derived : public Widget
{
};

QAccessible::Role roleOf(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

/// Installs a factory while it exists.
class OwnFactory
{
public:
    explicit OwnFactory(QAccessible::InterfaceFactory make)
        : m_make(make)
    {
        QAccessible::installFactory(m_make);
    }
    ~OwnFactory()
    {
        QAccessible::removeFactory(m_make);
    }
    Q_DISABLE_COPY(OwnFactory)

private:
    QAccessible::InterfaceFactory m_make;
};

template <typename Widget>
void givesWay(QAccessible::Role role)
{
    {
        const OwnFactory before(makeOwn<Widget>);
        Widget first;
        Derived<Widget> derived;
        QCOMPARE(roleOf(first), QAccessible::Clock);
        QCOMPARE(roleOf(derived), QAccessible::Clock);
    }
    Widget withoutOwn;
    QCOMPARE(roleOf(withoutOwn), role);
    const OwnFactory after(makeOwn<Widget>);
    Widget second;
    Derived<Widget> derived;
    QCOMPARE(roleOf(second), QAccessible::Clock);
    QCOMPARE(roleOf(derived), QAccessible::Clock);
    QCOMPARE(roleOf(withoutOwn), role); // Qt keeps an interface as long as its widget
}

} // namespace

/// Each function has an application object of its own, which are several in one process.
class tst_AccessibleFactory : public QObject
{
    Q_OBJECT

public:
    tst_AccessibleFactory(int& argc, char** argv);

private Q_SLOTS:
    void init();
    void cleanup();

    void batteryGivesWay();
    void labelGivesWay();
    void everyApplicationFindsTheInterfaces_data();
    void everyApplicationFindsTheInterfaces();
    void derivedClassesAreFound();
    void baseClassesAreLeftAlone();

private:
    int& m_argc;
    char** m_argv;
    std::unique_ptr<QApplication> m_application;
};

tst_AccessibleFactory::tst_AccessibleFactory(int& argc, char** argv)
    : m_argc(argc)
    , m_argv(argv)
{
}

void tst_AccessibleFactory::init()
{
    test::prepareApplication();
    m_application = std::make_unique<QApplication>(m_argc, m_argv);
    test::setUpApplication();
}

void tst_AccessibleFactory::cleanup()
{
    m_application.reset();
}

void tst_AccessibleFactory::batteryGivesWay()
{
    givesWay<ui::CBatteryStatusWidget>(QAccessible::ProgressBar);
}

void tst_AccessibleFactory::labelGivesWay()
{
    givesWay<ClickableLabel>(QAccessible::Link);
}

void tst_AccessibleFactory::everyApplicationFindsTheInterfaces_data()
{
    QTest::addColumn<int>("application");
    for (const int application : {1, 2, 3})
        QTest::addRow("%d", application) << application;
}

void tst_AccessibleFactory::everyApplicationFindsTheInterfaces()
{
    ui::CBatteryStatusWidget battery;
    ClickableLabel label;
    QCOMPARE(roleOf(battery), QAccessible::ProgressBar);
    QCOMPARE(roleOf(label), QAccessible::Link);

    ui::LineEdit field;
    QIntValidator validator(10, 99);
    field.setValidator(&validator);
    QTest::keyClick(&field, Qt::Key_1);
    QCOMPARE(QAccessible::queryAccessibleInterface(&field)->text(QAccessible::Description),
             QStringLiteral("Invalid input"));
}

void tst_AccessibleFactory::derivedClassesAreFound()
{
    Derived<ui::CBatteryStatusWidget> battery;
    Derived<ClickableLabel> label;
    QCOMPARE(roleOf(battery), QAccessible::ProgressBar);
    QCOMPARE(roleOf(label), QAccessible::Link);
}

void tst_AccessibleFactory::baseClassesAreLeftAlone()
{
    const ui::CBatteryStatusWidget battery;
    const ClickableLabel label;
    QWidget baseOfBattery;
    QLabel baseOfLabel;
    QCOMPARE(roleOf(baseOfBattery), QAccessible::Client);
    QCOMPARE(roleOf(baseOfLabel), QAccessible::StaticText);
}

int main(int argc, char** argv)
{
    const QTemporaryDir runtimeDir; // or Qt warns of a missing one within the first function
    qputenv("XDG_RUNTIME_DIR", runtimeDir.path().toLocal8Bit());
    tst_AccessibleFactory instance(argc, argv);
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&instance, argc, argv);
}

#include "tst_AccessibleFactory.moc"
