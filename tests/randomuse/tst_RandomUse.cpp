#include "Machines.h"
#include "Search.h"
#include "TestApplication.h"

/**
 * A few thousand random steps for each widget, and for all of them where a pixel of theirs is no
 * whole number of the screen's. "./dev soak" plays as many as wanted.
 */
class tst_RandomUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void machine_data();
    void machine();
    void scaled_data();
    void scaled();

private:
    void play(const QString& machine, int steps);
};

/// Searches in processes of its own.
void tst_RandomUse::play(const QString& machine, int steps)
{
    constexpr quint32 seed = 20; // any will do, as long as a failure can be repeated
    const QString report = soak::search(QStringLiteral(SOAK_PROGRAM), machine, seed, steps);
    QVERIFY2(report.isEmpty(), qPrintable(report));
}

void tst_RandomUse::machine_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : soak::machineNames())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_RandomUse::machine()
{
    QFETCH(QString, name);
    play(name, 3000);
}

void tst_RandomUse::scaled_data()
{
    QTest::addColumn<QByteArray>("factor");
    for (const char* factor : {"0.75", "1.25", "1.5", "2"})
        QTest::newRow(factor) << QByteArray(factor);
}

void tst_RandomUse::scaled()
{
    QFETCH(QByteArray, factor);
    qputenv("QT_SCALE_FACTOR", factor);
    play(QStringLiteral("together"), 2000);
    qunsetenv("QT_SCALE_FACTOR");
}

int main(int argc, char** argv)
{
    return test::run<tst_RandomUse>(argc, argv);
}

#include "tst_RandomUse.moc"
