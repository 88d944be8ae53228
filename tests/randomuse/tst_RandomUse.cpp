#include "models/Models.h"
#include "Search.h"
#include "TestApplication.h"

/**
 * A few thousand random commands for each widget, and for all of them where a pixel of theirs is no
 * whole number of the screen's. "./dev soak" plays as many as wanted.
 */
class tst_RandomUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassHasModel();
    void model_data();
    void model();
    void scaled_data();
    void scaled();

private:
    void play(const QString& model, int commands);
};

/// Searches in processes of its own.
void tst_RandomUse::play(const QString& model, int commands)
{
    constexpr quint32 seed = 20; // any will do, as long as a failure can be repeated
    const QString report = test::search(QStringLiteral(SOAK_PROGRAM), model, seed, commands);
    QVERIFY2(report.isEmpty(), qPrintable(report));
}

void tst_RandomUse::everyClassHasModel()
{
    QCOMPARE(test::classesWithoutModel(), QString());
}

void tst_RandomUse::model_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : test::modelNames())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_RandomUse::model()
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

const test::Registration<tst_RandomUse> registration;

#include "tst_RandomUse.moc"
