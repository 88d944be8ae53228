#include "Machines.h"
#include "Search.h"
#include "TestApplication.h"

/// A few thousand random steps for each widget; "./dev soak" plays as many as wanted.
class tst_RandomUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void machine_data();
    void machine();
};

void tst_RandomUse::machine_data()
{
    QTest::addColumn<int>("steps");
    for (const QString& name : soak::machineNames())
        QTest::newRow(qPrintable(name)) << 3000;
}

void tst_RandomUse::machine()
{
    QFETCH(int, steps);
    constexpr quint32 seed = 20; // any will do, as long as a failure can be repeated
    const QString report = soak::search(QStringLiteral(SOAK_PROGRAM),
                                        QLatin1String(QTest::currentDataTag()), seed, steps);
    QVERIFY2(report.isEmpty(), qPrintable(report));
}

int main(int argc, char** argv)
{
    return test::run<tst_RandomUse>(argc, argv);
}

#include "tst_RandomUse.moc"
