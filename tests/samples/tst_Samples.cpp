#include "Samples.h"

#include "AllClasses.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

namespace {

/// What the sample for \a className has made in \a window.
QObject* madeBySample(const QWidget& window, const char* className)
{
    for (const test::ClassInfo& info : test::allClasses()) {
        if (qstrcmp(info.name, className) != 0)
            continue;
        for (QObject* child : window.findChildren<QObject*>()) {
            if (child->metaObject()->inherits(info.metaObject))
                return child;
        }
    }
    return nullptr;
}

} // namespace

/// The samples of the reference do what they are for, without a warning.
class tst_Samples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyClassHasSample();
    void runs_data();
    void runs();
};

void tst_Samples::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_Samples::everyClassHasSample()
{
    QStringList names;
    for (const samples::Sample& sample : samples::all)
        names.append(QString::fromLatin1(sample.className));
    QCOMPARE(test::uncovered(names), QString());
}

void tst_Samples::runs_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(samples::all)); ++i)
        QTest::newRow(samples::all[i].className) << i;
}

void tst_Samples::runs()
{
    QFETCH(int, index);
    const samples::Sample& sample = samples::all[index];

    auto* window = new QWidget;
    sample.run(window);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    const QPointer<QObject> object = madeBySample(*window, sample.className);
    QVERIFY(object);
    QVERIFY(!window->grab().isNull());
    delete window;
    QVERIFY(!object); // all that a sample makes belongs to its window
}

const test::Registration<tst_Samples> registration;

#include "tst_Samples.moc"
