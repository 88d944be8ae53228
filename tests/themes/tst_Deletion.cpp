#include "AllClasses.h"
#include "EventLoop.h"
#include "PlatformMessages.h"
#include "Provocations.h"
#include "TestApplication.h"

#include <QMetaMethod>
#include <QPointer>

#include <utility>

using test::ClassInfo;
using test::Provocation;

namespace {

/// Deletes an object on a signal.
class Deleter : public QWidget
{
    Q_OBJECT

public:
    Deleter(QObject* victim, bool later, int* count, QWidget* parent)
        : QWidget(parent)
        , m_victim(victim)
        , m_later(later)
        , m_count(count)
    {
    }

public Q_SLOTS:
    void run()
    {
        ++*m_count;
        // A running animation reports that it stops when it is deleted: once is enough.
        const QPointer<QObject> victim = std::exchange(m_victim, nullptr);
        if (m_later && victim)
            victim->deleteLater();
        else
            delete victim; // and this deleter with it, if it is the window
    }

private:
    QPointer<QObject> m_victim;
    bool m_later;
    int* m_count;
};

QVector<QMetaMethod> signalsOf(const QMetaObject& metaObject)
{
    QVector<QMetaMethod> result;
    for (int i = 0; i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() == QMetaMethod::Signal
            && !(method.attributes() & QMetaMethod::Cloned))
            result.append(method);
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Provocation)

/**
 * Every signal of every class, with a slot that deletes the sender, or the window that holds sender
 * and receiver.
 *
 * The signals are those of the meta-objects: one for which Provocations.cpp knows no way to make it
 * be emitted fails the test.
 */
class tst_Deletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everySignalIsProvoked_data();
    void everySignalIsProvoked();
    void inSlot_data();
    void inSlot();
};

void tst_Deletion::initTestCase()
{
    test::dropPlatformMessages();
    test::registerArgumentTypes();
}

void tst_Deletion::everySignalIsProvoked_data()
{
    QTest::addColumn<ClassInfo>("info");
    for (const ClassInfo& info : test::allClasses())
        QTest::newRow(info.name) << info;
}

void tst_Deletion::everySignalIsProvoked()
{
    QFETCH(ClassInfo, info);
    for (const QMetaMethod& signal : signalsOf(*info.metaObject)) {
        QVERIFY2(!test::provocations(*info.metaObject, signal).isEmpty(),
                 signal.methodSignature().constData());
    }
}

void tst_Deletion::inSlot_data()
{
    QTest::addColumn<ClassInfo>("info");
    QTest::addColumn<int>("signalIndex");
    QTest::addColumn<Provocation>("provocation");
    QTest::addColumn<bool>("deleteWindow");
    for (const ClassInfo& info : test::allClasses()) {
        for (const QMetaMethod& signal : signalsOf(*info.metaObject)) {
            for (const Provocation& way : test::provocations(*info.metaObject, signal)) {
                for (const bool deleteWindow : {false, true}) {
                    QTest::addRow("%s::%s, %s, %s", info.name, signal.name().constData(), way.name,
                                  deleteWindow ? "window" : "sender")
                        << info << signal.methodIndex() << way << deleteWindow;
                }
            }
        }
    }
}

void tst_Deletion::inSlot()
{
    QFETCH(ClassInfo, info);
    QFETCH(int, signalIndex);
    QFETCH(Provocation, provocation);
    QFETCH(bool, deleteWindow);

    const QPointer<QWidget> window = new QWidget;
    window->resize(400, 300);
    const QPointer<QObject> sender = info.createTypical(window);
    const QMetaMethod signal = info.metaObject->method(signalIndex);
    window->show();
    window->activateWindow();
    test::processEvents();
    const QPointer<QObject> victim = deleteWindow ? window.data() : sender.data();
    int count = 0;
    auto* deleter = new Deleter(victim, provocation.later, &count, window);
    const int slot = deleter->metaObject()->indexOfSlot("run()");
    connect(sender, signal, deleter, deleter->metaObject()->method(slot));

    provocation.run(sender, signal);
    QVERIFY(count > 0);
    test::processEvents();
    QVERIFY(!victim);
    delete window;
    QVERIFY(!sender);
}

const test::Registration<tst_Deletion> registration;

#include "tst_Deletion.moc"
